#include "files/FilePatterns.h"

#include <wx/arrstr.h>

// File names in capitals come from older systems and their memory cards; here case counts.
wxString PatternsOfAnyCase(const wxString& patterns) {
    wxArrayString all;
    for (const wxString& pattern : wxSplit(patterns, ';', '\0'))
        for (const wxString& form : {pattern, pattern.Lower(), pattern.Upper()})
            if (all.Index(form) == wxNOT_FOUND)
                all.Add(form);
    return wxJoin(all, ';', '\0');
}
