// The radio's debug log, both generations: records of one log, one per line.
#include "fuzz/RecordMutation.h"
#include "transfer/DebugLog.h"
#include "transfer/TransferContext.h"

#include <wx/filefn.h>
#include <wx/filename.h>
#include <wx/init.h>

#include <cstdint>
#include <cstdlib>
#include <string>

namespace {

/// Opens and closes a real log once, in a folder of its own.
void TryLogFile() {
    const wxString former = wxGetCwd();
    const wxString folder = wxFileName::CreateTempFileName("zelk-fuzz");
    TRecordContext context;
    if (!wxRemoveFile(folder) || !wxMkdir(folder) || !wxSetWorkingDirectory(folder))
        std::abort();
    for (const char* serial : {"1", "2"})
        OpenDebugLog(context, serial, "2026-11-22 12:00:00");
    if (!context.DebugLogFile.IsOpened() || !context.DebugLogFile.Close() || !wxSetWorkingDirectory(former) ||
        !wxFileName::Rmdir(folder, wxPATH_RMDIR_RECURSIVE))
        std::abort();
}

/// Pieces of a log after its first byte, which says the protocol: whole records.
Pieces RecordsOf(std::string_view input) {
    Pieces records = SplitAfter(input.substr(1), "\r");
    for (Piece& record : records.all)
        ++record.begin;
    return records;
}

std::string MutatedLog(std::string_view input, size_t longest, Dice& dice) {
    if (input.empty())
        return MutatedText(input, longest);
    const Pieces records = RecordsOf(input);
    if (records.all.empty() || Throw(dice, 2) == 0)
        return MutatedPieces(input, records, longest, dice);
    const Piece& piece = records.all[Throw(dice, records.all.size())];
    const size_t length = piece.length - piece.ending;
    return std::string(input).replace(piece.begin, length,
                                      MutatedRecord(input.substr(piece.begin, length), false, dice));
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***) {
    static wxInitializer toolkit;
    if (!toolkit.IsOk())
        return 1;
    TryLogFile();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    if (size == 0)
        return 0;
    TRecordContext context;
    context.Protocol = data[0] % 3;
    if (!context.DebugLogFile.Open("/dev/null", "w"))
        std::abort();
    wxString rest = wxString::From8BitData(reinterpret_cast<const char*>(data) + 1, size - 1);
    while (!rest.empty()) {
        // A string that is its own rest is emptied before its first part is copied.
        const wxString all = rest;
        context.RxLine = all.BeforeFirst('\r', &rest);
        decodeDebugLog(context);
        if (context.Phase != 0)
            std::abort();
    }
    EndDebugLog(context);
    return 0;
}

extern "C" size_t LLVMFuzzerCustomMutator(uint8_t* data, size_t size, size_t most, unsigned seed) {
    return Mutate(data, size, most, seed, MutatedLog);
}
