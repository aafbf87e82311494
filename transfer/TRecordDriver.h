// The dialogue with the digital radios.
#pragma once

#include <wx/string.h>

class wxGrid;
struct TRecordContext;

/// The place of the driver for digital radios, which aren't spoken to yet: no port is opened and nothing is
/// sent, read or shown.
///
/// @return TransferUnsupported (9), always
int TransferData(TRecordContext& context, wxGrid* grid, int mode, const wxString& portName,
                 const wxString& title);
