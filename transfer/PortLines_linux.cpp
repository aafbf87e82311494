#include "transfer/PortLines.h"

// Opening a device has raised them.
void RaisePortLines(PortHandle) {}
