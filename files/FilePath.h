// Paths of the standard library and of the toolkit.
#pragma once

#include <wx/string.h>

#include <filesystem>

/// Returns the same path for the standard library, whatever the locale. One source file for each operating
/// system, as are the forms in which they keep names.
std::filesystem::path PathOf(const wxString& name);

/// Returns the same path for the toolkit, whatever the locale.
wxString NameOf(const std::filesystem::path& path);
