#include "transfer/ChosenPort.h"

wxString PortName = "none";
