#include "transfer/TRecordDriver.h"

#include "transfer/TransferStatus.h"

int TransferData(TRecordContext&, wxGrid*, int, const wxString&, const wxString&) {
    return TransferUnsupported;
}
