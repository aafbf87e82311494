// The radio's debug log, both generations: records of one log, one per line.
#include "transfer/DebugLog.h"
#include "transfer/TransferContext.h"

#include <wx/init.h>

#include <unistd.h>

#include <cstdint>
#include <cstdlib>
#include <string>

extern "C" int LLVMFuzzerInitialize(int*, char***) {
    static wxInitializer toolkit;
    return toolkit.IsOk() ? 0 : 1;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    if (size == 0)
        return 0;
    TRecordContext context;
    context.Protocol = data[0] % 3;
    if (!context.DebugLogFile.Open("/dev/null", "w"))
        std::abort();
    wxString all = wxString::From8BitData(reinterpret_cast<const char*>(data) + 1, size - 1);
    while (!all.empty()) {
        context.RxLine = all.BeforeFirst('\r', &all);
        decodeDebugLog(context);
        if (context.Phase != 0)
            std::abort();
    }
    EndDebugLog(context);
    return 0;
}
