// Texts of the results of a transfer.
#include "transfer/TransferStatus.h"

wxArrayString StatusList;

namespace {

constexpr const char* StatusTexts[] = {
    "Ok",
    "Complete",
    "Port Error",
    "Communication Failure",
    "Timeout",
    "Communication Error",
    "Checksum Error",
    "No Data Selected",
    "Invalid Transmit Data",
    "Protocol is Unsupported",
    "Cancelled by User",
    "K7 Data Transfer is currently UnSupported",
};

} // namespace

void FillStatusList() {
    StatusList.clear();
    for (const char* text : StatusTexts)
        StatusList.Add(text);
}

wxString GetStatusText(int status) {
    if (status < 0 || static_cast<size_t>(status) >= StatusList.size())
        return "Bad Index";
    return StatusList[static_cast<size_t>(status)];
}
