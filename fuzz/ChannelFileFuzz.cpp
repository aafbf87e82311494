// Channel files, as read by Open.
#include "catalogue/PageModel.h"
#include "editing/PageReset.h"
#include "files/ChannelFileReader.h"
#include "files/XmlFile.h"
#include "files/ZelkFile_OpenSave.h"
#include "fuzz/ElementMutation.h"
#include "fuzz/FileFuzz.h"

#include <wx/xml/xml.h>

extern "C" int LLVMFuzzerInitialize(int*, char***) {
    MakeFuzzWindow({{RadioCatalogue::Kdrv716, 0}});
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    wxXmlDocument document;
    if (!LoadXmlFile(FuzzPath(data, size), document))
        return 0;
    ResetPage(CurrentPage);
    const int result = OpenZelkFile(document, CurrentPage);
    Demand(result == ChannelFile::ReadDone ||
               (result >= ChannelFile::NoRoot && result <= ChannelFile::OtherElement),
           "the reader has no such result");
    CheckFuzzPage();
    return 0;
}

extern "C" size_t LLVMFuzzerCustomMutator(uint8_t* data, size_t size, size_t most, unsigned seed) {
    return Mutate(data, size, most, seed, [](std::string_view input, size_t longest, Dice& dice) {
        return MutatedPieces(input, PiecesOfDocument(input, dice), longest, dice);
    });
}
