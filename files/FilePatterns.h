// Patterns of file dialogs as the system compares them.
#pragma once

#include <wx/string.h>

/// Patterns ("*.txt;*.csv") that show files whatever case their extensions are in.
wxString PatternsOfAnyCase(const wxString& patterns);
