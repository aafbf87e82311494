#include "simulator/FaultPlan.h"

#include <charconv>

namespace Simulator {

namespace {

/// Answers at which a fault is played, relative to its own.
enum class Reach { There, Onwards, Anywhere };

struct KindName {
    FaultKind kind;
    std::string_view name;
    Reach reach = Reach::There;
};

constexpr KindName Kinds[] = {
    {FaultKind::Silence, "silence"},
    {FaultKind::LateAck, "late-ack"},
    {FaultKind::NoAck, "no-ack"},
    {FaultKind::Noise, "noise"},
    {FaultKind::Torn, "torn"},
    {FaultKind::Cut, "cut"},
    {FaultKind::Unplug, "unplug"},
    {FaultKind::Checksum, "checksum"},
    {FaultKind::ChecksumAlways, "checksum-always", Reach::Onwards},
    {FaultKind::Nak, "nak"},
    {FaultKind::NakAlways, "nak-always", Reach::Onwards},
    {FaultKind::Wait, "wait"},
    {FaultKind::Joined, "joined"},
    {FaultKind::LineFeed, "linefeed", Reach::Onwards},
    {FaultKind::End, "end"},
    {FaultKind::Deaf, "deaf", Reach::Anywhere},
    {FaultKind::Busy, "busy", Reach::Anywhere},
};

Reach ReachOf(FaultKind kind) {
    for (const KindName& entry : Kinds)
        if (entry.kind == kind)
            return entry.reach;
    return Reach::There;
}

bool IsReached(const Fault& fault, int answer) {
    switch (ReachOf(fault.kind)) {
    case Reach::Onwards:
        return answer >= fault.answer;
    case Reach::Anywhere:
        return true;
    case Reach::There:
        break;
    }
    return answer == fault.answer;
}

/// Returns the number in the text, or 0 if the text isn't exactly one number of at least 1.
int PositiveNumber(std::string_view text) {
    int value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    return error == std::errc() && end == text.data() + text.size() && value > 0 ? value : 0;
}

} // namespace

std::optional<Fault> ParseFault(std::string_view text, std::string& problem) {
    const size_t at = text.find('@');
    const std::string_view name = text.substr(0, at);
    for (const KindName& entry : Kinds) {
        if (entry.name != name || at == std::string_view::npos)
            continue;
        const std::string_view place = text.substr(at + 1);
        const size_t slash = place.find('/');
        const int answer = PositiveNumber(place.substr(0, slash));
        const int transfer = slash == std::string_view::npos ? 0 : PositiveNumber(place.substr(slash + 1));
        if (answer == 0 || (slash != std::string_view::npos && transfer == 0))
            break;
        return Fault{entry.kind, answer, transfer};
    }
    problem = "\"" + std::string(text) +
              "\" is no fault: say KIND@N or KIND@N/T with N and T from 1; kinds are " + FaultNames();
    return std::nullopt;
}

std::string FaultNames() {
    std::string names;
    for (const KindName& entry : Kinds)
        names += (names.empty() ? "" : ", ") + std::string(entry.name);
    return names;
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
        if (fault.kind == kind && IsReached(fault, answer) &&
            (fault.transfer == 0 || fault.transfer == transfer))
            return &fault;
    return nullptr;
}

} // namespace Simulator
