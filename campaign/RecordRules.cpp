#include "campaign/RecordRules.h"

#include "catalogue/ChoiceLists.h"
#include "catalogue/RadioTables.h"

#include <algorithm>
#include <cinttypes>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <initializer_list>
#include <iterator>

using namespace RadioCatalogue;

namespace Campaign {

namespace {

// Positions of guards and memories are typed from the record formats.
constexpr int LastOrdinaryOfFirstLayout = 230, LastOrdinary = 500;
constexpr int GuardZone = 15;
constexpr int ScannedFlag = 0x08, LinkFlagsOfRow = 0x17, ShadowPlaces = 0x07, GuardFlagOfRow = 0x80;
constexpr int NoSquelchByte = 10;
constexpr int AnalogNoTone = 64;
constexpr int UnknownReach = 200;

/// A text for each column that a record determines.
struct ColumnText {
    Column column;
    std::string text;
};

std::string DecimalOf(int64_t value, int width = 1) {
    char text[32];
    std::snprintf(text, sizeof text, "%0*" PRId64, width, value);
    return text;
}

std::string HexadecimalOf(int value, int width) {
    char text[32];
    std::snprintf(text, sizeof text, "%0*X", width, static_cast<unsigned>(value));
    return text;
}

std::string WithoutBlanks(const std::string& text) {
    const size_t first = text.find_first_not_of(' ');
    return first == text.npos ? "" : text.substr(first, text.find_last_not_of(' ') - first + 1);
}

std::string Padded(const std::string& text, size_t width) {
    std::string padded = WithoutBlanks(text);
    padded.resize(width, ' ');
    return padded;
}

int Decimal(const std::string& text) {
    return static_cast<int>(std::strtol(text.c_str(), nullptr, 10));
}

int Hexadecimal(const std::string& text) {
    return static_cast<int>(std::strtol(text.c_str(), nullptr, 16));
}

int64_t Hertz(const std::string& megahertz) {
    return std::lround(std::strtod(megahertz.c_str(), nullptr) * 1e6);
}

template <size_t count>
int PositionIn(const char* const (&list)[count], const std::string& text, int otherwise) {
    const auto found = std::find(std::begin(list), std::end(list), text);
    return found == std::end(list) ? otherwise : static_cast<int>(found - std::begin(list));
}

template <size_t count>
std::string EntryOf(const char* const (&list)[count], int position, const std::string& otherwise) {
    return position >= 0 && position < static_cast<int>(count) ? list[position] : otherwise;
}

int ZoneOf(const Formats& formats, int row, const RowTexts& texts) {
    const bool first = formats.scenario.target->radio == Kdrv716;
    // The first layout has the guards of the longer list in its last zone.
    if (!formats.IsSecondLayout() && row > LastOrdinary)
        return GuardZone;
    const int zone =
        first ? PositionIn(ZoneNames16, texts[ZONE], 0) : PositionIn(ZoneNames32, texts[ZONE], 0);
    return formats.IsSecondLayout() ? zone : zone & 0x0F;
}

int PrimaryOf(const RowTexts& texts) {
    if ((Hexadecimal(texts[MFLG]) & ShadowPlaces) && texts[SHAD].starts_with("S-"))
        return Decimal(texts[SHAD].substr(2));
    return Decimal(texts[PRIM]);
}

int FlagsOf(const Formats& formats, const RowTexts& texts) {
    int flags = Hexadecimal(texts[MFLG]);
    if (!(flags & LinkFlagsOfRow))
        flags = texts[SCAN] == "Y" ? flags | ScannedFlag : flags & ~ScannedFlag;
    return formats.IsSecondLayout() ? flags : flags & ~GuardFlagOfRow;
}

std::string ScanField(const std::string& cell) {
    const int mask = Decimal(cell);
    if (mask < 1 || mask > 31)
        return "LOCK ";
    std::string text = "12345";
    for (size_t list = 0; list < text.size(); ++list)
        if (!(mask >> list & 1))
            text[list] = '_';
    return text;
}

int ScanMask(const std::string& field) {
    int mask = 0;
    if (field != "LOCK ")
        for (size_t list = 0; list < field.size(); ++list)
            mask |= field[list] != '_' ? 1 << list : 0;
    return mask;
}

/// Cells have as many digits before the point as they need, but at least two.
std::string AnalogFrequency(int64_t units) {
    const std::string text = DecimalOf(units / 10'000, 3) + "." + DecimalOf(units % 10'000, 4);
    return text[0] == '0' ? text.substr(1) : text;
}

std::string DigitalFrequency(const Formats& formats, int64_t hertz) {
    const int64_t whole = hertz / 1'000'000, rest = hertz % 1'000'000;
    return formats.IsSecondLayout() ? (DecimalOf(whole) + "." + DecimalOf(rest, 6)).substr(0, 9)
                                    : DecimalOf(whole, 3) + "." + DecimalOf(rest / 100, 4);
}

std::string FirstDifference(const std::initializer_list<ColumnText>& expected, const RowTexts& texts) {
    for (const ColumnText& each : expected)
        if (const std::string& text = texts[static_cast<size_t>(each.column)]; text != each.text)
            return std::string(ColumnTag[each.column]) + " is \"" + text + "\" and not \"" + each.text + "\"";
    return {};
}

} // namespace

bool Formats::IsSecondLayout() const {
    return scenario.target->protocol == 2 && scenario.radio.digitalHabits.firmware.starts_with("02");
}

int Formats::Reach() const {
    if (const Simulator::AnalogModel* model = scenario.radio.analogModel)
        return model->openingNumber != 0 ? model->rows : std::min(model->rows, UnknownReach);
    return LastOrdinary + 2;
}

bool Formats::Travels(int number) const {
    if (!scenario.radio.IsDigital())
        return number <= Reach();
    return IsSecondLayout() || scenario.target->radio == Kdrv716 || number <= LastOrdinaryOfFirstLayout ||
           number > LastOrdinary;
}

Simulator::DigitalMemory DigitalMemoryOf(const Formats& formats, int row, const RowTexts& texts) {
    const auto letter = [&](Column column) {
        const std::string& text = texts[static_cast<size_t>(column)];
        const std::string& used = text.empty() ? formats.defaults[static_cast<size_t>(column)] : text;
        return used.empty() ? ' ' : used[0];
    };
    Simulator::DigitalMemory memory;
    memory.address = row;
    memory.number = Decimal(texts[MNUM]);
    memory.primary = PrimaryOf(texts);
    memory.flags = FlagsOf(formats, texts);
    memory.zone = ZoneOf(formats, row, texts);
    memory.description = Padded(texts[DESC], 8);
    memory.mode = letter(MODE);
    memory.rxFrequency = Hertz(texts[RFRQ]);
    memory.rxSquelch = letter(RSQL);
    memory.rxTone = PositionIn(CtcssTexts, texts[RTON], -1) + 1;
    memory.rxCode = PositionIn(CodeTexts, texts[RCOD], 0);
    memory.rxTalkGroup = Hexadecimal(texts[RTGP]);
    memory.rxNac = Hexadecimal(texts[RNAC]) & 0xFFF;
    memory.txFrequency = Hertz(texts[TFRQ]);
    memory.txSquelch = letter(TSQL);
    memory.txTone = PositionIn(CtcssTexts, texts[TTON], -1) + 1;
    memory.txCode = PositionIn(CodeTexts, texts[TCOD], 0);
    memory.txTalkGroup = Hexadecimal(texts[TTGP]);
    memory.txNac = Hexadecimal(texts[TNAC]);
    memory.txId = Decimal(texts[TIDC]);
    const bool hasSquelchValue = formats.scenario.target->radio == Kdrv716B;
    memory.squelchValue = hasSquelchValue ? Decimal(texts[RNSV]) : NoSquelchByte;
    return memory;
}

Simulator::AnalogMemory AnalogMemoryOf(int row, const RowTexts& texts) {
    const auto tone = [](const std::string& text) {
        const int position = PositionIn(ToneTexts, text, 0);
        return position == 0 ? AnalogNoTone : position;
    };
    const auto code = [](const std::string& text) {
        return text == "OFF" || text == "n/a" ? std::string("000") : text;
    };
    Simulator::AnalogMemory memory;
    memory.number = row;
    memory.description = Padded(texts[DESC], 9);
    memory.rxFrequency = Hertz(texts[RFRQ]) / 100;
    memory.txFrequency = Hertz(texts[TFRQ]) / 100;
    memory.rxTone = tone(texts[RTON]);
    memory.txTone = tone(texts[TTON]);
    memory.rxCode = code(texts[RCOD]);
    memory.txCode = code(texts[TCOD]);
    memory.scan = ScanField(texts[SCAN]);
    memory.mode = texts[MODE] == "w" || texts[MODE] == "W" ? 'W' : 'N';
    return memory;
}

std::string ZoneCellOf(const Formats& formats, const Simulator::DigitalMemory& memory) {
    if (memory.flags & ShadowPlaces)
        return {};
    const bool first = formats.scenario.target->radio == Kdrv716;
    const int zone = formats.IsSecondLayout() ? memory.zone : memory.zone & 0x0F;
    if (memory.address > (first ? LastOrdinaryOfFirstLayout : LastOrdinary))
        return first ? *std::rbegin(ZoneNames16) : *std::rbegin(ZoneNames32);
    return first ? ZoneNames16[zone] : ZoneNames32[zone];
}

std::string DifferenceFrom(const Formats& formats, const Simulator::DigitalMemory& memory,
                           const RowTexts& texts) {
    const bool second = formats.IsSecondLayout();
    const RowTexts& defaults = formats.defaults;
    const std::string squelchByte = (memory.squelchValue < 10 ? " " : "") + DecimalOf(memory.squelchValue);
    // A code is read back one place further down the list; the receive code of the first layout counts from
    // 0.
    const int rxPlace = second ? memory.rxCode + 1 : memory.rxCode > 0 ? memory.rxCode : -1;
    return FirstDifference(
        {{MNUM, second ? DecimalOf(memory.number) : DecimalOf(memory.address, 3)},
         {PRIM, second ? DecimalOf(memory.primary) : DecimalOf(memory.primary, 3)},
         {MFLG, HexadecimalOf(second ? memory.flags : memory.flags & ~GuardFlagOfRow, 2)},
         {SCAN, memory.flags & ScannedFlag ? "Y" : "N"},
         {ZONE, ZoneCellOf(formats, memory)},
         {DESC, WithoutBlanks(memory.description)},
         {MODE, std::string(1, memory.mode)},
         {RFRQ, DigitalFrequency(formats, memory.rxFrequency)},
         {RSQL, std::string(1, memory.rxSquelch)},
         {RNSV, second ? DecimalOf(memory.squelchValue) : squelchByte},
         {RTON, EntryOf(CtcssTexts, memory.rxTone - 1, defaults[RTON])},
         {RCOD, EntryOf(CodeTexts, rxPlace, defaults[RCOD])},
         {RTGP, HexadecimalOf(memory.rxTalkGroup, 4)},
         {RNAC, HexadecimalOf(memory.rxNac, 3)},
         {TFRQ, DigitalFrequency(formats, memory.txFrequency)},
         {TSQL, std::string(1, memory.txSquelch)},
         {TTON, EntryOf(CtcssTexts, memory.txTone - 1, defaults[TTON])},
         {TCOD, EntryOf(CodeTexts, memory.txCode + 1, defaults[TCOD])},
         {TTGP, HexadecimalOf(memory.txTalkGroup, 4)},
         {TNAC, HexadecimalOf(memory.txNac, 3)},
         {TIDC, second ? DecimalOf(memory.txId, 7) : DecimalOf(memory.txId)},
         {SHAD, memory.flags & ShadowPlaces ? "S-" + DecimalOf(memory.primary, 3) : texts[SHAD]}},
        texts);
}

std::string DifferenceFrom(const Formats& formats, const Simulator::AnalogMemory& memory,
                           const RowTexts& texts) {
    const bool shortForm = formats.scenario.radio.analogHabits.shortForm;
    const bool module = formats.scenario.target->bandIndex == ModuleSlot;
    const auto code = [](const std::string& text) { return text == "000" ? std::string("OFF") : text; };
    // The module uses either a tone or codes, and reads 64, which is no tone, as one.
    const bool noCodes = module && !shortForm;
    RowTexts shown = texts;
    shown[DESC] = WithoutBlanks(shown[DESC]);
    return FirstDifference({{MNUM, DecimalOf(memory.number, 3)},
                            {DESC, WithoutBlanks(memory.description)},
                            {RFRQ, AnalogFrequency(memory.rxFrequency)},
                            {TFRQ, AnalogFrequency(memory.txFrequency)},
                            {RTON, shortForm ? "n/a" : EntryOf(ToneTexts, memory.rxTone, "")},
                            {TTON, EntryOf(ToneTexts, memory.txTone, "")},
                            {RCOD, shortForm ? "n/a"
                                   : noCodes ? "OFF"
                                             : code(memory.rxCode)},
                            {TCOD, noCodes ? "OFF" : code(memory.txCode)},
                            {SCAN, DecimalOf(ScanMask(memory.scan))},
                            {MODE, memory.mode == 'N' ? "n" : "w"},
                            {TFLG, "C0"}},
                           shown);
}

namespace {

/// Adds "name one, other" if the values differ and nothing was added before.
class Comparison {
public:
    template <class Value>
    Comparison& Of(const char* name, const Value& one, const Value& other) {
        if (m_text.empty() && one != other)
            m_text = std::string(name) + " " + Shown(one) + ", " + Shown(other);
        return *this;
    }
    std::string Text() const { return m_text; }

private:
    static std::string Shown(const std::string& text) { return "\"" + text + "\""; }
    static std::string Shown(char letter) { return std::string(1, letter); }
    static std::string Shown(int64_t number) { return std::to_string(number); }
    static std::string Shown(int number) { return std::to_string(number); }

    std::string m_text;
};

} // namespace

std::string DifferenceOf(const Simulator::DigitalMemory& one, const Simulator::DigitalMemory& other) {
    using Memory = Simulator::DigitalMemory;
    Comparison comparison;
    const auto numbers = [&](const char* name, int Memory::*field) {
        comparison.Of(name, one.*field, other.*field);
    };
    numbers("address", &Memory::address);
    numbers("number", &Memory::number);
    numbers("primary", &Memory::primary);
    numbers("flags", &Memory::flags);
    numbers("zone", &Memory::zone);
    comparison.Of("description", one.description, other.description);
    comparison.Of("mode", one.mode, other.mode);
    comparison.Of("receive frequency", one.rxFrequency, other.rxFrequency);
    comparison.Of("receive squelch", one.rxSquelch, other.rxSquelch);
    numbers("receive tone", &Memory::rxTone);
    numbers("receive code", &Memory::rxCode);
    numbers("receive talk group", &Memory::rxTalkGroup);
    numbers("receive NAC", &Memory::rxNac);
    comparison.Of("transmit frequency", one.txFrequency, other.txFrequency);
    comparison.Of("transmit squelch", one.txSquelch, other.txSquelch);
    numbers("transmit tone", &Memory::txTone);
    numbers("transmit code", &Memory::txCode);
    numbers("transmit talk group", &Memory::txTalkGroup);
    numbers("transmit NAC", &Memory::txNac);
    comparison.Of("transmit ID", one.txId, other.txId);
    numbers("squelch value", &Memory::squelchValue);
    return comparison.Text();
}

std::string DifferenceOf(const Simulator::AnalogMemory& one, const Simulator::AnalogMemory& other) {
    Comparison comparison;
    comparison.Of("number", one.number, other.number);
    comparison.Of("description", one.description, other.description);
    comparison.Of("receive frequency", one.rxFrequency, other.rxFrequency);
    comparison.Of("transmit frequency", one.txFrequency, other.txFrequency);
    comparison.Of("receive tone", one.rxTone, other.rxTone);
    comparison.Of("transmit tone", one.txTone, other.txTone);
    comparison.Of("receive code", one.rxCode, other.rxCode);
    comparison.Of("transmit code", one.txCode, other.txCode);
    comparison.Of("scan", one.scan, other.scan);
    comparison.Of("mode", one.mode, other.mode);
    return comparison.Text();
}

} // namespace Campaign
