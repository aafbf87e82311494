// Channel files, as read by Open.
#include "catalogue/PageModel.h"
#include "editing/PageReset.h"
#include "files/XmlFile.h"
#include "files/ZelkFile_OpenSave.h"
#include "fuzz/FuzzWindow.h"

#include <wx/log.h>
#include <wx/mstream.h>
#include <wx/xml/xml.h>

#include <cstdint>
#include <string_view>

extern "C" int LLVMFuzzerInitialize(int*, char***) {
    MakeFuzzWindow();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const wxLogNull quiet;
    if (!IsHarmlessMarkup({reinterpret_cast<const char*>(data), size}))
        return 0;
    wxMemoryInputStream stream(data, size);
    wxXmlDocument document;
    if (!document.Load(stream, "UTF-8", wxXMLDOC_NONE))
        return 0;
    ResetPage(CurrentPage);
    OpenZelkFile(document, CurrentPage);
    CheckFuzzPage();
    return 0;
}
