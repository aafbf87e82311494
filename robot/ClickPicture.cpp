#include "robot/ClickPicture.h"

#include "robot/Hands.h"
#include "robot/PictureSpot.h"
#include "robot/Pump.h"

#include <wx/image.h>

namespace testbench {

bool ClickPicture(Hands& hands, const wxImage& picture, int ms) {
    std::optional<wxPoint> spot;
    const auto isShown = [&] {
        spot = FindPicture(Desk().Picture({}), picture);
        return spot.has_value();
    };
    if (!PumpUntil(isShown, ms))
        return false;
    hands.Click(*spot);
    return true;
}

} // namespace testbench
