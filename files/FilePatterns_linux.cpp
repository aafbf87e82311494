#include "files/FilePatterns.h"

#include <wx/arrstr.h>

// Case counts on this system, and older systems and their memory cards have file names in capitals.
wxString PatternsOfAnyCase(const wxString& patterns) {
    wxArrayString all;
    for (const wxString& pattern : wxSplit(patterns, ';', '\0'))
        for (const wxString& form : {pattern, pattern.Lower(), pattern.Upper()})
            if (all.Index(form) == wxNOT_FOUND)
                all.Add(form);
    return wxJoin(all, ';', '\0');
}
