#include "simulator/DigitalModels.h"

namespace Simulator {

namespace {

constexpr FrequencyRange Vhf[] = {{136, 174}};
constexpr FrequencyRange ModuleBands[] = {{30, 50},   {66, 88},   {108, 138}, {136, 174},
                                          {225, 400}, {403, 512}, {700, 900}, {896, 960}};

constexpr DigitalModel Models[] = {
    {"KDRV-716", "FM 136-174", false, Vhf, 232, true, false, false, "wnD", "xtcmng", "xtc-gi", 83, 0,
     "010203"},
    {"KDRV-716B", "FM 136-174", false, Vhf, 502, true, true, true, "wnD", "xtcmng", "xtc-gi", 83, 2,
     "020103"},
    // The module's lists also hold analog channels, which have no squelch letters and count "OFF" as a code.
    {"KDRV-4xxx", "K7", true, ModuleBands, 500, false, true, false, "WNwnD ", "xtcmng ", "xtc-gi ", 84, 2,
     "020103"},
};

} // namespace

std::span<const DigitalModel> DigitalModels() {
    return Models;
}

const DigitalModel* FindDigitalModel(std::string_view name, std::string_view band) {
    for (const DigitalModel& model : Models)
        if (model.name == name && (model.band == band || (band.empty() && !model.bandNeeded)))
            return &model;
    return nullptr;
}

Layout LayoutOf(int protocol, std::string_view firmware) {
    return protocol == 2 && firmware.starts_with("02") ? Layout::V2 : Layout::V1;
}

} // namespace Simulator
