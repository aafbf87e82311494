#include "simulator/FaultPlan.h"

#include <charconv>
#include <iterator>

namespace Simulator {

namespace {

struct KindName {
    FaultKind kind;
    std::string_view name;
};

constexpr KindName Kinds[] = {
    {FaultKind::Silence, "silence"}, {FaultKind::LateAck, "late-ack"}, {FaultKind::NoAck, "no-ack"},
    {FaultKind::Noise, "noise"},     {FaultKind::Torn, "torn"},        {FaultKind::Cut, "cut"},
    {FaultKind::Unplug, "unplug"},
};

/// A number from 1 up that fills the whole text, or 0.
int PositiveNumber(std::string_view text) {
    int value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    return error == std::errc() && end == text.data() + text.size() && value > 0 ? value : 0;
}

} // namespace

std::optional<Fault> ParseFault(std::string_view text, std::string& trouble) {
    const std::size_t at = text.find('@');
    const std::string_view name = text.substr(0, at);
    for (const KindName& entry : Kinds) {
        if (entry.name != name || at == std::string_view::npos)
            continue;
        const std::string_view place = text.substr(at + 1);
        const std::size_t slash = place.find('/');
        const int answer = PositiveNumber(place.substr(0, slash));
        const int transfer = slash == std::string_view::npos ? 0 : PositiveNumber(place.substr(slash + 1));
        if (answer == 0 || (slash != std::string_view::npos && transfer == 0))
            break;
        return Fault{entry.kind, answer, transfer};
    }
    trouble =
        "\"" + std::string(text) + "\" is no fault: say KIND@N or KIND@N/T with N and T from 1; kinds are ";
    for (std::size_t k = 0; k < std::size(Kinds); ++k)
        trouble += (k ? ", " : "") + std::string(Kinds[k].name);
    return std::nullopt;
}

std::string FaultText(const Fault& fault) {
    for (const KindName& entry : Kinds)
        if (entry.kind == fault.kind)
            return std::string(entry.name) + "@" + std::to_string(fault.answer) +
                   (fault.transfer ? "/" + std::to_string(fault.transfer) : "");
    return {};
}

const Fault* FaultPlan::Find(FaultKind kind, int transfer, int answer) const {
    for (const Fault& fault : m_faults)
        if (fault.kind == kind && fault.answer == answer &&
            (fault.transfer == 0 || fault.transfer == transfer))
            return &fault;
    return nullptr;
}

} // namespace Simulator
