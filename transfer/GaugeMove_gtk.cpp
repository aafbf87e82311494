#include "transfer/GaugeMove.h"

#include <wx/gauge.h>

void MoveGauge(wxGauge& gauge, int value) {
    gauge.SetValue(value);
}
