#include "tests/editing/CopiedText.h"

#include <wx/clipbrd.h>
#include <wx/dataobj.h>

std::string testbench::TextOnClipboard() {
    wxTextDataObject data;
    const wxClipboardLocker lock;
    if (!lock || !wxTheClipboard->GetData(data))
        return "(nothing)";
    return data.GetText().utf8_string();
}
