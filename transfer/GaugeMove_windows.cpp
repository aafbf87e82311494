#include "transfer/GaugeMove.h"

#include <wx/gauge.h>
#include <wx/wupdlock.h>

// The system's gauge draws itself at each move.
void MoveGauge(wxGauge& gauge, int value) {
    const wxWindowUpdateLocker later(&gauge);
    gauge.SetValue(value);
}
