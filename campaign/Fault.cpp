#include "campaign/Fault.h"

#include <algorithm>

namespace Campaign {

namespace {

struct KindRow {
    FaultKind kind;
    const char* name;
    Place place;
    bool digitalOnly = false;
    std::optional<Simulator::FaultKind> plan = {};
};

using Plan = Simulator::FaultKind;

constexpr KindRow Rows[] = {
    {FaultKind::Lost, "lost", Place::Byte},
    {FaultKind::Doubled, "doubled", Place::Byte},
    {FaultKind::Changed, "changed", Place::Byte},
    {FaultKind::Delayed, "delayed", Place::Byte},
    {FaultKind::NoiseBefore, "noise-before", Place::Byte},
    {FaultKind::NoiseAfter, "noise-after", Place::Byte},
    {FaultKind::Cut, "cut", Place::Byte},
    {FaultKind::Unplugged, "unplugged", Place::Byte},
    {FaultKind::Restart, "restart", Place::Byte},
    {FaultKind::Cancel, "cancel", Place::Byte},
    {FaultKind::LineBefore, "line-before", Place::Message},
    {FaultKind::Twice, "twice", Place::Message},
    {FaultKind::BusyFor, "busy-for", Place::Message, true},
    {FaultKind::Babble, "babble", Place::Message, true},
    {FaultKind::Silence, "silence", Place::Answer, false, Plan::Silence},
    {FaultKind::LateAck, "late-ack", Place::Answer, false, Plan::LateAck},
    {FaultKind::NoAck, "no-ack", Place::Answer, false, Plan::NoAck},
    {FaultKind::Noise, "noise", Place::Answer, false, Plan::Noise},
    {FaultKind::Torn, "torn", Place::Answer, false, Plan::Torn},
    {FaultKind::CutLine, "cut-line", Place::Answer, false, Plan::Cut},
    {FaultKind::Vanish, "vanish", Place::Answer, false, Plan::Unplug},
    {FaultKind::WrongChecksum, "wrong-checksum", Place::Answer, true, Plan::Checksum},
    {FaultKind::WrongChecksumAlways, "wrong-checksum-always", Place::Answer, true, Plan::ChecksumAlways},
    {FaultKind::Refusal, "refusal", Place::Answer, true, Plan::Nak},
    {FaultKind::RefusalAlways, "refusal-always", Place::Answer, true, Plan::NakAlways},
    {FaultKind::Wait, "wait", Place::Answer, true, Plan::Wait},
    {FaultKind::Joined, "joined", Place::Answer, true, Plan::Joined},
    {FaultKind::LineFeed, "line-feed", Place::Answer, true, Plan::LineFeed},
    {FaultKind::EndRecord, "end-record", Place::Answer, true, Plan::End},
    {FaultKind::MissedSpeed, "missed-speed", Place::Answer, true, Plan::Deaf},
    {FaultKind::BusyErasing, "busy-erasing", Place::Answer, true, Plan::Busy},
    {FaultKind::PortTaken, "port-taken", Place::Start},
};
static_assert(std::size(Rows) == FaultKinds);

const KindRow& RowOf(FaultKind kind) {
    return *std::find_if(std::begin(Rows), std::end(Rows),
                         [kind](const KindRow& row) { return row.kind == kind; });
}

/// Times around the drivers' own: their pauses, their time-outs, and beyond.
int AnyTime(Random& random) {
    constexpr int times[] = {1,   2,   10,   40,   60,    190,   210,   450,
                             550, 900, 4900, 5100, 20000, 29900, 30100, 60000};
    return random.Pick(times);
}

int AnyValue(Random& random, FaultKind kind) {
    switch (kind) {
    case FaultKind::Lost:
        // Two zeros less leave the checksum of a record as it was.
        return random.Chance(60) ? 1 : random.Chance(60) ? 2 : random.Between(3, 200);
    case FaultKind::Changed:
        return random.Chance(70) ? 1 << random.Below(8) : random.Between(1, 255);
    case FaultKind::NoiseBefore:
    case FaultKind::NoiseAfter:
        return random.Between(1, 12);
    case FaultKind::Delayed:
    case FaultKind::Restart:
    case FaultKind::BusyFor:
        return AnyTime(random);
    case FaultKind::Cancel:
        return random.Chance(50) ? 0 : AnyTime(random);
    default:
        return 0;
    }
}

} // namespace

Place PlaceOf(FaultKind kind) {
    return RowOf(kind).place;
}

const char* NameOf(FaultKind kind) {
    return RowOf(kind).name;
}

std::optional<Simulator::FaultKind> PlanKind(FaultKind kind) {
    return RowOf(kind).plan;
}

std::string TextOf(const Fault& fault) {
    std::string text = NameOf(fault.kind);
    switch (PlaceOf(fault.kind)) {
    case Place::Byte:
        text += " at byte " + std::to_string(fault.at) +
                (fault.side == Side::ToRadio ? " to the radio" : " to the program");
        break;
    case Place::Message:
        text += " at message " + std::to_string(fault.at);
        break;
    case Place::Answer:
        text += " at answer " + std::to_string(fault.at);
        break;
    case Place::Start:
        break;
    }
    return fault.value ? text + ", " + std::to_string(fault.value) : text;
}

Fault AnyFault(Random& random, bool digital, int bytesToRadio, int bytesToProgram, int answers) {
    const KindRow* row = nullptr;
    do {
        row = &random.Pick(Rows);
        // The port can be taken only once: more often would waste runs.
    } while ((row->digitalOnly && !digital) || (row->kind == FaultKind::PortTaken && !random.Chance(10)));
    Fault fault{row->kind};
    fault.value = AnyValue(random, row->kind);
    switch (row->place) {
    case Place::Byte:
        fault.side = random.Chance(50) ? Side::ToRadio : Side::ToProgram;
        fault.at = random.Below(std::max(fault.side == Side::ToRadio ? bytesToRadio : bytesToProgram, 1));
        break;
    case Place::Message:
        fault.at = random.Below(answers + 8);
        break;
    case Place::Answer:
        fault.at = random.Between(1, answers + 1);
        break;
    case Place::Start:
        break;
    }
    return fault;
}

} // namespace Campaign
