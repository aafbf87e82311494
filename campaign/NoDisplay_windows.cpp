#include "campaign/NoDisplay.h"

namespace Campaign {

// The system knows fonts and colours without a display, and the toolkit is silent.
void SilenceDisplayComplaints() {}

} // namespace Campaign
