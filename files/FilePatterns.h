// File dialog patterns in the form that the system compares.
#pragma once

#include <wx/string.h>

/// Returns patterns ("*.txt;*.csv") that show files whatever the case of their extensions.
wxString PatternsOfAnyCase(const wxString& patterns);
