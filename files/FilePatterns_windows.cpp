#include "files/FilePatterns.h"

// This system ignores case.
wxString PatternsOfAnyCase(const wxString& patterns) {
    return patterns;
}
