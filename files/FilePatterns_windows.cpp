#include "files/FilePatterns.h"

// The system takes no notice of case.
wxString PatternsOfAnyCase(const wxString& patterns) {
    return patterns;
}
