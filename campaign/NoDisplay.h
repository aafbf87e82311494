// The toolkit without a display. One source file for each operating system.
#pragma once

namespace Campaign {

/// Keeps the toolkit's library from complaining that there is no display.
void SilenceDisplayComplaints();

} // namespace Campaign
