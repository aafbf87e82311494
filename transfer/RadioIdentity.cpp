#include "transfer/RadioIdentity.h"

wxString RadioVersion;
wxString RadioSerial;
wxString RadioStamp;
KnownContent HeldByRadio;
