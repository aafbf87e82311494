#include "campaign/CoverageReport.h"

#include <algorithm>
#include <cstdio>
#include <optional>
#include <sstream>

namespace Campaign {

namespace {

struct State {
    std::string name; ///< as a transfer names it
    std::string heading;
};
using States = std::vector<State>;

const States& KnownStates(bool digital) {
    static const States digitalStates = {
        {StartOfTransfer, "start"}, {"hello", "hello"},       {"speed", "speed"},
        {"modes", "modes"},         {"hardware", "hardware"}, {"hardware text", "hardware text"},
        {"version", "version"},     {"stamp", "stamp"},       {"opening", "opening"},
        {"purge", "purge"},         {"data", "data"},
    };
    // The analog driver has no numbered states. The text that it shows stands for them.
    static const States analogStates = {
        {StartOfTransfer, "start"},
        {"Initializing....", "initializing"},
        {"Sending Memory Data....", "sending"},
        {"Receiving Memory Data....", "receiving"},
    };
    return digital ? digitalStates : analogStates;
}

/// Kinds of fault that a single fault can play in some states only.
struct Limit {
    bool digital;
    std::vector<FaultKind> kinds;
    std::vector<std::string> only; ///< states
    const char* reason;            ///< why not in the others
};

const std::vector<Limit>& Limits() {
    using enum FaultKind;
    static const std::vector<Limit> limits = {
        {true,
         {LateAck, NoAck, Noise, Torn, CutLine, Vanish, WrongChecksum, WrongChecksumAlways, Refusal,
          RefusalAlways, Wait, Joined, EndRecord},
         {"data"},
         "the radio counts its answers from the first memory on"},
        {true, {Silence}, {"opening", "data"}, "a silence begins right before one of these answers"},
        {true,
         {LineFeed},
         {"hello", "data"},
         "they count where they begin: at the first line or at a memory"},
        {true, {MissedSpeed}, {"speed"}, "only this message changes the speed"},
        {true, {BusyErasing}, {"purge", "data"}, "the radio erases for a purge or for a row"},
        {true, {PortTaken}, {StartOfTransfer}, "the port is opened before the first state"},
        {false,
         {BusyFor, Babble, WrongChecksum, WrongChecksumAlways, Refusal, RefusalAlways, Wait, Joined, LineFeed,
          EndRecord, MissedSpeed, BusyErasing},
         {},
         "analog radios have no records"},
        {false,
         {LineBefore, Twice, Silence, Noise, Vanish},
         {"Sending Memory Data....", "Receiving Memory Data...."},
         "the simulated radios send nothing before a command"},
        {false, {LateAck, NoAck}, {"Sending Memory Data...."}, "only a write is acknowledged"},
        {false, {Torn, CutLine}, {"Receiving Memory Data...."}, "an acknowledgement is a single byte"},
        {false, {PortTaken}, {StartOfTransfer}, "the port is opened before the first state"},
    };
    return limits;
}

bool Contains(const auto& list, const auto& item) {
    return std::find(list.begin(), list.end(), item) != list.end();
}

const Limit* LimitOf(bool digital, FaultKind kind) {
    for (const Limit& limit : Limits())
        if (limit.digital == digital && Contains(limit.kinds, kind))
            return &limit;
    return nullptr;
}

bool CanHappen(bool digital, const std::string& state, FaultKind kind) {
    const Limit* limit = LimitOf(digital, kind);
    return limit ? Contains(limit->only, state) : state != StartOfTransfer;
}

const char* NameOfDriver(bool digital) {
    return digital ? "digital" : "analog";
}

std::optional<FaultKind> KindNamed(const std::string& name) {
    for (int kind = 0; kind < FaultKinds; ++kind)
        if (name == NameOf(static_cast<FaultKind>(kind)))
            return static_cast<FaultKind>(kind);
    return {};
}

/// The known states of a driver, and those that only its transfers know.
States StatesOf(const Totals& totals, bool digital) {
    States states = KnownStates(digital);
    for (const auto& [key, count] : totals.coverage) {
        const auto& [driver, name, kind] = key;
        const bool known = std::any_of(states.begin(), states.end(),
                                       [&name = name](const State& state) { return state.name == name; });
        if (driver == digital && !known)
            states.push_back({name, name});
    }
    return states;
}

int64_t CountOf(const Totals& totals, bool digital, const std::string& state, FaultKind kind) {
    const auto found = totals.coverage.find({digital, state, kind});
    return found == totals.coverage.end() ? 0 : found->second;
}

std::string Right(const std::string& text, size_t width) {
    return text.size() < width ? std::string(width - text.size(), ' ') + text : text;
}

std::string Left(const std::string& text, size_t width) {
    return text.size() < width ? text + std::string(width - text.size(), ' ') : text;
}

/// The reason and the kinds of each limit of a driver.
std::string ReasonsOf(bool digital) {
    std::string text;
    for (const Limit& limit : Limits()) {
        if (limit.digital != digital)
            continue;
        std::string kinds;
        for (const FaultKind kind : limit.kinds)
            kinds += (kinds.empty() ? "" : ", ") + std::string(NameOf(kind));
        text += std::string("    ") + limit.reason + ":\n        " + kinds + "\n";
    }
    return text;
}

size_t WidthOf(const State& state) {
    constexpr size_t counts = 7, gap = 2;
    return std::max(state.heading.size(), counts) + gap;
}

std::string TableOf(const Totals& totals, bool digital) {
    constexpr size_t kindWidth = 23;
    const States states = StatesOf(totals, digital);
    std::string text = Left(NameOfDriver(digital), kindWidth);
    for (const State& state : states)
        text += Right(state.heading, WidthOf(state));
    for (int each = 0; each < FaultKinds; ++each) {
        const FaultKind kind = static_cast<FaultKind>(each);
        const bool anywhere = std::any_of(states.begin(), states.end(), [&](const State& state) {
            return CanHappen(digital, state.name, kind) || CountOf(totals, digital, state.name, kind) > 0;
        });
        if (!anywhere)
            continue;
        text += "\n" + Left(NameOf(kind), kindWidth);
        for (const State& state : states) {
            const int64_t count = CountOf(totals, digital, state.name, kind);
            text += Right(count == 0 && !CanHappen(digital, state.name, kind) ? "." : std::to_string(count),
                          WidthOf(state));
        }
    }
    return text + "\n. no fault can do this alone:\n" + ReasonsOf(digital);
}

/// Calls take(pair as text, count, whether one fault can do it) for each state of both drivers and each kind.
void EachPair(const Totals& totals, auto take) {
    for (const bool digital : {true, false})
        for (const State& state : StatesOf(totals, digital))
            for (int each = 0; each < FaultKinds; ++each) {
                const FaultKind kind = static_cast<FaultKind>(each);
                take(std::string(NameOfDriver(digital)) + ", " + state.heading + ", " + NameOf(kind),
                     CountOf(totals, digital, state.name, kind), CanHappen(digital, state.name, kind));
            }
}

} // namespace

void AddCoverage(Totals& totals, const Coverage& coverage) {
    for (const auto& [key, count] : coverage) {
        const auto& [digital, state, kind] = key;
        const bool isBefore = PlaceOf(kind) == Place::Start;
        totals.coverage[{digital, isBefore ? StartOfTransfer : state, kind}] += count;
    }
}

std::string CoverageLines(const Totals& totals) {
    std::string text;
    for (const auto& [key, count] : totals.coverage) {
        const auto& [digital, state, kind] = key;
        text += std::string("covered ") + NameOfDriver(digital) + "|" + state + "|" + NameOf(kind) + " " +
                std::to_string(count) + "\n";
    }
    return text;
}

std::string TotalLine(const Totals& totals, double seconds) {
    char speed[60];
    std::snprintf(speed, sizeof speed, "%.0f dialogues a second\n",
                  static_cast<double>(totals.dialogues) / seconds);
    return std::to_string(totals.dialogues) + " dialogues, " + std::to_string(totals.broken) +
           " seeds broken, " + speed;
}

void AddLine(Totals& totals, const std::string& line) {
    const std::string covered = "covered ";
    if (line.starts_with(covered)) {
        std::istringstream in(line.substr(covered.size()));
        std::string driver, state, kindAndCount;
        std::getline(in, driver, '|');
        std::getline(in, state, '|');
        std::getline(in, kindAndCount);
        std::istringstream rest(kindAndCount);
        std::string name;
        int64_t count = 0;
        if (!(rest >> name >> count))
            return;
        if (const std::optional<FaultKind> kind = KindNamed(name))
            totals.coverage[{driver == NameOfDriver(true), state, *kind}] += count;
        return;
    }
    std::istringstream in(line);
    int64_t dialogues = 0, broken = 0;
    std::string word, seeds;
    if (in >> dialogues >> word >> broken >> seeds && word == "dialogues," && seeds == "seeds") {
        totals.dialogues += dialogues;
        totals.broken += broken;
    }
}

std::string CoverageTables(const Totals& totals) {
    return TableOf(totals, true) + "\n" + TableOf(totals, false);
}

std::vector<std::string> NeverReached(const Totals& totals) {
    std::vector<std::string> pairs;
    EachPair(totals, [&](const std::string& pair, int64_t count, bool canHappen) {
        if (canHappen && count == 0)
            pairs.push_back(pair);
    });
    return pairs;
}

bool IsLongEnough(const Totals& totals) {
    constexpr int64_t enough = 250'000;
    return totals.dialogues >= enough;
}

std::vector<std::string> ReachedTogether(const Totals& totals) {
    std::vector<std::string> pairs;
    EachPair(totals, [&](const std::string& pair, int64_t count, bool canHappen) {
        if (!canHappen && count > 0)
            pairs.push_back(pair + ", " + std::to_string(count));
    });
    return pairs;
}

} // namespace Campaign
