#include "simulator/AnalogModels.h"

#include <algorithm>

namespace Simulator {

namespace {

constexpr int ShortReach = 202;
constexpr StartKey NoKey = StartKey::None;
constexpr StartKey Enter = StartKey::Enter;
constexpr StartKey Home = StartKey::Home;

constexpr AnalogModel Models[] = {
    // name, band, ranges, rows, opening number, key, writable
    {"KRV-21", "FM 30-50", {{{30, 50}}}, 122, 2, NoKey, true},
    {"KRV-47", "FM 66-88", {{{66, 88}}}, 122, 2, NoKey, true},
    {"ORV-12", "AM 118-138", {{{118, 138}}}, 6, 0, NoKey, false},
    {"KRV-214", "FM 138-174", {{{138, 174}}}, 102, 4, NoKey, true},
    {"KRV-214B", "FM 138-174", {{{138, 174}}}, 122, 1, NoKey, true},
    {"KRV-305", "FM 403-512", {{{403, 512}}}, 122, 3, NoKey, true},
    {"KDAR-2000", "AM 118-138", {{{118, 138}}}, 100, 0, NoKey, false},
    {"KRV-610", "FM 138-174", {{{138, 174}}}, 202, 0, Enter, true},
    {"KRV-610", "FM 403-512", {{{403, 512}}}, 200, 0, Enter, true},
    {"KRV-620", "FM 138-174", {{{138, 174}}}, 200, 0, Enter, true},
    {"KRV-620", "AM 225-400", {{{225, 400}}}, 200, 0, Enter, true},
    {"KRV-630", "FM 30-50", {{{30, 50}}}, 200, 0, Enter, true},
    {"KRV-630", "FM 138-174", {{{138, 174}}}, 202, 0, Enter, true},
    {"KRV-630_QNT", "FM 30-50", {{{30, 50}}}, 202, 0, Enter, true},
    {"KRV-630_QNT", "FM 138-174", {{{138, 174}}}, 200, 0, Enter, true},
    {"KRV-650", "FM 30-50", {{{30, 50}}}, 200, 0, Enter, true},
    {"KRV-650", "FM 138-174", {{{138, 174}}}, 200, 0, Enter, true},
    {"KRV-650", "FM 403-512", {{{403, 512}}}, 200, 0, Enter, true},
    {"KRV-656", "FM 66-88", {{{66, 88}}}, 200, 0, Enter, true},
    {"KRV-656", "FM 138-174", {{{138, 174}}}, 200, 0, Enter, true},
    {"KRV-656", "FM 403-512", {{{403, 512}}}, 200, 0, Enter, true},
    {"KRV-666", "FM 66-88", {{{66, 88}}}, 200, 0, Enter, true},
    {"KRV-666", "FM 138-174", {{{138, 174}}}, 202, 0, Enter, true},
    {"KDRV-8400", "FM 30-50", {{{30, 50}}}, 200, 0, Home, true},
    {"KDRV-8400", "AM 118-138", {{{118, 138}}}, 200, 0, Home, true},
    {"KDRV-8400", "FM 138-174", {{{138, 174}}}, 200, 0, Home, true},
    {"KDRV-8400", "AM 225-400", {{{225, 400}}}, 200, 0, Home, true},
    {"KDRV-8400", "FM 403-512", {{{403, 512}}}, 200, 0, Home, true},
    {"KDRV-4xxx", "FM 30-50", {{{30, 50}}}, 200, 0, NoKey, true},
    {"KDRV-4xxx", "AM 118-138", {{{118, 138}}}, 200, 0, NoKey, true},
    {"KDRV-4xxx", "FM 138-174", {{{138, 174}}}, 200, 0, NoKey, true},
    {"KDRV-4xxx", "AM 225-400", {{{225, 400}}}, 200, 0, NoKey, true},
    {"KDRV-4xxx", "FM 403-512", {{{403, 512}}}, 200, 0, NoKey, true},
    {"KDRV-4xxx", "K6 3-BAND", {{{30, 50}, {108, 138}, {225, 400}}}, 500, 0, NoKey, true},
};

} // namespace

std::span<const AnalogModel> AnalogModels() {
    return Models;
}

Result<const AnalogModel*> FindAnalogModel(std::string_view name, std::string_view band) {
    const AnalogModel* found = nullptr;
    std::string offered;
    int bands = 0;
    for (const AnalogModel& model : Models) {
        if (model.name != name)
            continue;
        ++bands;
        offered += (offered.empty() ? "\"" : ", \"") + std::string(model.band) + "\"";
        if (band.empty() || model.band == band)
            found = &model;
    }
    if (bands == 0)
        return Refusal{"no analog radio is called \"" + std::string(name) + "\" (--list names them all)"};
    if (!found || (band.empty() && bands > 1))
        return Refusal{std::string(name) + (band.empty() ? " has several bands" : " has no such band") +
                       ", say one of " + offered + ", as in --model \"" + std::string(name) + ":BAND\""};
    return found;
}

bool HasGuards(const AnalogModel& model) {
    return model.rows % 10 == 2;
}

int ShortOpeningReach(const AnalogModel& model) {
    return std::min(model.rows, ShortReach);
}

} // namespace Simulator
