#include "campaign/Scenario.h"

#include "catalogue/ChoiceLists.h"
#include "catalogue/RadioTables.h"
#include "simulator/DigitalLists.h"

#include <algorithm>
#include <cstdio>
#include <stdexcept>

using namespace RadioCatalogue;

namespace Campaign {

namespace {

constexpr Target Targets[] = {
    {"KDRV-716", "FM 136-174", Kdrv716, 0, true, 0, "010203"},
    {"KDRV-716", "FM 136-174", Kdrv716, 0, true, 1, "010203"},
    {"KDRV-716", "FM 136-174", Kdrv716, 0, true, 1, "020103"},
    {"KDRV-716B", "FM 136-174", Kdrv716B, 0, true, 2, "020103"},
    {"KDRV-716B", "FM 136-174", Kdrv716B, 0, true, 2, "010203"},
    {"KRV-21", "FM 30-50", Krv21, 0, false, 0, ""},
    {"KRV-47", "FM 66-88", Krv47, 0, false, 0, ""},
    {"KRV-214", "FM 138-174", Krv214, 0, false, 0, ""},
    {"KRV-214B", "FM 138-174", Krv214B, 0, false, 0, ""},
    {"KRV-305", "FM 403-512", Krv305, 0, false, 0, ""},
    {"KRV-610", "FM 138-174", Krv610, 0, false, 0, ""},
    {"KRV-630", "FM 138-174", Krv630, 1, false, 0, ""},
    {"KDRV-8400", "FM 138-174", Kdrv8400, 2, false, 0, ""},
    {"KDRV-4xxx", "FM 138-174", Kdrv4xxx, 2, false, 0, ""},
    {"KDRV-4xxx", "K6 3-BAND", Kdrv4xxx, ModuleSlot, false, 0, ""},
};

/// Digital targets come first, and are chosen as often as analog ones.
constexpr int DigitalTargets = 5;

constexpr int CodeTotal = static_cast<int>(std::size(CodeTexts));

/// A description such as "R12 K".
std::string Description(Random& random, char prefix, int number, char firstLetter) {
    return prefix + std::to_string(number) + ' ' + static_cast<char>(firstLetter + random.Below(26));
}

/// A frequency within the band of every slot that the target's radio has, in units of 100 Hz.
int AnyFrequency(Random& random, int low, int high) {
    // Whole channels of 12.5 kHz, inside the band.
    const int channels = (high - low) * 80 - 2;
    return low * 10'000 + 125 * random.Between(1, channels);
}

std::string Megahertz(int units) {
    char text[32];
    std::snprintf(text, sizeof text, "%03d.%04d", units / 10'000, units % 10'000);
    return text;
}

struct Band {
    int low, high;
};

Band BandOf(const Scenario& scenario) {
    if (scenario.radio.IsDigital())
        return {136, 174};
    const Simulator::FrequencyRange& range = scenario.radio.analogModel->ranges[0];
    return {range.low, range.high};
}

void ChooseRadio(Random& random, Scenario& scenario) {
    const Target& target =
        random.Chance(50)
            ? Targets[random.Below(DigitalTargets)]
            : Targets[DigitalTargets + random.Below(static_cast<int>(std::size(Targets)) - DigitalTargets)];
    scenario.target = &target;
    RadioState& radio = scenario.radio;
    if (target.digital) {
        radio.digitalModel = Simulator::FindDigitalModel(target.name, "");
        radio.digitalHabits.protocol = target.protocol;
        radio.digitalHabits.firmware = target.firmware;
        radio.digitalHabits.modes = random.Chance(80) ? 0x70 : 0x10 << random.Below(3);
        radio.digitalHabits.stamp = random.Chance(50) ? "20200101000000" : "20250607080910";
        radio.digital.log = Simulator::DefaultLog(target.protocol);
        radio.digital.hardware.resize(static_cast<size_t>(random.Below(3)));
    } else {
        const auto model = Simulator::FindAnalogModel(target.name, target.band);
        radio.analogModel = model ? *model : nullptr;
        constexpr Simulator::Parity parities[] = {Simulator::Parity::None, Simulator::Parity::Text,
                                                  Simulator::Parity::All, Simulator::Parity::Bytes};
        radio.analogHabits.parity = random.Pick(parities);
        radio.analogHabits.shortForm = random.Chance(20);
        radio.analogHabits.guardNames = random.Chance(30);
        radio.analogHabits.allRows = random.Chance(5);
        radio.analogHabits.endLine = random.Chance(85);
        radio.analogHabits.confirmsOpening = random.Chance(30);
        if (random.Chance(20))
            radio.analogHabits.banner = "";
    }
    if (!(target.digital ? radio.digitalModel != nullptr : radio.analogModel != nullptr))
        throw std::logic_error(std::string("the simulator has no ") + target.name);
}

int LastMemory(const Scenario& scenario) {
    if (scenario.radio.IsDigital())
        return RadioRows[scenario.target->radio][0];
    // Only the first memories of a module are within reach.
    return std::min(scenario.radio.analogModel->rows, 202);
}

/// Numbers of memories: the first ones, the guards, and some in between.
std::vector<int> AnyMemories(Random& random, const Scenario& scenario) {
    const int last = LastMemory(scenario);
    std::map<int, bool> chosen;
    const int count = random.Chance(3) ? 30 : random.Between(1, 7);
    for (int i = 0; i < count; ++i)
        chosen[random.Chance(60)   ? random.Between(1, 12)
               : random.Chance(60) ? random.Between(1, last - 2)
               : random.Chance(30) ? std::min(random.Between(229, 232), last)
                                   : random.Between(last - 3, last)] = true;
    std::vector<int> numbers;
    numbers.reserve(chosen.size());
    for (const auto& [number, used] : chosen)
        numbers.push_back(number);
    return numbers;
}

void FillDigitalCells(Random& random, const Scenario& scenario, RowTexts& texts) {
    const Simulator::DigitalModel& model = *scenario.radio.digitalModel;
    const auto letter = [&](std::string_view letters) { return std::string(1, random.Pick(letters)); };
    const auto hexadecimal = [&](int digits) {
        char text[16];
        std::snprintf(text, sizeof text, "%0*X", digits,
                      static_cast<unsigned>(random.Below(1 << (4 * digits))));
        return std::string(text);
    };
    texts[MODE] = random.Chance(70) ? "n" : random.Chance(50) ? "D" : "w";
    texts[SCAN] = random.Chance(50) ? "Y" : "N";
    texts[RSQL] = letter(model.rxSquelch);
    texts[TSQL] = letter(model.txSquelch);
    texts[RTON] = random.Pick(CtcssTexts);
    texts[TTON] = random.Pick(CtcssTexts);
    texts[RCOD] = random.Pick(CodeTexts);
    texts[TCOD] = random.Pick(CodeTexts);
    texts[RTGP] = hexadecimal(4);
    texts[TTGP] = hexadecimal(4);
    texts[RNAC] = hexadecimal(3);
    texts[TNAC] = hexadecimal(3);
    texts[TIDC] = std::to_string(random.Below(10'000'000));
    texts[RNSV] = scenario.target->radio == Kdrv716B ? std::to_string(random.Below(16)) : "";
}

void FillAnalogCells(Random& random, RowTexts& texts) {
    constexpr const char* modes[] = {"n", "w", "N", "W"};
    texts[MODE] = random.Pick(modes);
    texts[SCAN] = std::to_string(random.Below(32));
    texts[RTON] = random.Pick(ToneTexts);
    texts[TTON] = random.Pick(ToneTexts);
    texts[RCOD] = random.Pick(CodeTexts);
    texts[TCOD] = random.Pick(CodeTexts);
}

void FillPage(Random& random, Scenario& scenario) {
    const Band band = BandOf(scenario);
    for (const int row : AnyMemories(random, scenario)) {
        RowTexts& texts = scenario.rows[row];
        texts[DESC] = Description(random, 'R', row, 'A');
        texts[RFRQ] = Megahertz(AnyFrequency(random, band.low, band.high));
        texts[TFRQ] = Megahertz(AnyFrequency(random, band.low, band.high));
        if (scenario.radio.IsDigital())
            FillDigitalCells(random, scenario, texts);
        else
            FillAnalogCells(random, texts);
    }
    if (!scenario.radio.IsDigital() || !random.Chance(30) || scenario.rows.size() < 2)
        return;
    // The first ordinary memory gets the next ones as shadows.
    const int last = LastMemory(scenario);
    int primary = 0;
    for (const auto& [row, texts] : scenario.rows) {
        if (row > last - 2)
            break;
        if (primary == 0)
            primary = row;
        else if (scenario.shadows.size() < 3)
            scenario.shadows[row] = primary;
    }
}

Simulator::DigitalMemory AnyDigitalMemory(Random& random, const Scenario& scenario, int number) {
    const Simulator::DigitalModel& model = *scenario.radio.digitalModel;
    const Band band = BandOf(scenario);
    Simulator::DigitalMemory memory;
    memory.address = memory.number = memory.primary = number;
    memory.description = Description(random, 'r', number, 'a');
    memory.description.resize(8, ' ');
    memory.rxFrequency = AnyFrequency(random, band.low, band.high) * 100L;
    memory.txFrequency = AnyFrequency(random, band.low, band.high) * 100L;
    memory.zone = random.Below(random.Chance(50) ? 16 : 32);
    memory.mode = random.Pick(model.modes);
    constexpr int flags[] = {0, 0x08, 0x40, 0x28, 0x108, 0x260};
    memory.flags = random.Pick(flags);
    memory.rxSquelch = random.Pick(model.rxSquelch);
    memory.txSquelch = random.Pick(model.txSquelch);
    memory.rxTone = random.Below(43);
    memory.txTone = random.Below(43);
    memory.rxCode = random.Below(model.highestCode + 1);
    memory.txCode = random.Below(model.highestCode + 1);
    memory.rxNac = random.Below(0x1000);
    memory.txNac = random.Below(0x1000);
    memory.rxTalkGroup = random.Below(0x10000);
    memory.txTalkGroup = random.Below(0x10000);
    memory.txId = random.Below(10'000'000);
    memory.squelchValue = random.Below(16);
    return memory;
}

Simulator::AnalogMemory AnyAnalogMemory(Random& random, const Scenario& scenario, int number) {
    const Band band = BandOf(scenario);
    Simulator::AnalogMemory memory = Simulator::EmptyMemory(*scenario.radio.analogModel, number);
    memory.description = Description(random, 'r', number, 'a');
    memory.description.resize(9, ' ');
    memory.rxFrequency = AnyFrequency(random, band.low, band.high);
    memory.txFrequency = AnyFrequency(random, band.low, band.high);
    memory.rxTone = random.Between(1, 64);
    memory.txTone = random.Between(1, 64);
    memory.rxCode = random.Chance(50) ? "000" : CodeTexts[random.Between(1, CodeTotal - 1)];
    memory.txCode = random.Chance(50) ? "000" : CodeTexts[random.Between(1, CodeTotal - 1)];
    memory.mode = random.Chance(50) ? 'N' : 'W';
    if (const int lists = random.Below(32)) {
        memory.scan = "12345";
        for (size_t list = 0; list < memory.scan.size(); ++list)
            if (!(lists >> list & 1))
                memory.scan[list] = '_';
    }
    return memory;
}

void FillRadio(Random& random, Scenario& scenario) {
    for (const int number : AnyMemories(random, scenario)) {
        if (!scenario.radio.IsDigital())
            scenario.radio.analog[number] = AnyAnalogMemory(random, scenario, number);
        else if (number <= scenario.radio.digitalModel->highest)
            scenario.radio.digital.memories[number] = AnyDigitalMemory(random, scenario, number);
    }
}

/// A known radio holds some memories that the user has emptied on the page, to be erased.
void ChooseErasures(Random& random, Scenario& scenario) {
    if (!scenario.radio.IsDigital() || !scenario.knowsRadio || !random.Chance(40))
        return;
    const int count = random.Between(1, 3);
    for (int i = 0; i < count; ++i) {
        const int row = random.Between(2, random.Chance(70) ? 14 : 229);
        if (scenario.rows.contains(row))
            continue;
        scenario.erased[row] = true;
        scenario.radio.digital.memories[row] = AnyDigitalMemory(random, scenario, row);
    }
}

Job AnyJob(Random& random, const Scenario& scenario) {
    Job job;
    const bool digital = scenario.radio.IsDigital();
    const int die = random.Below(100);
    if (die < 55)
        job.mode = WriteChannelsMode;
    else if (die < 90 || !digital)
        job.mode = ReadChannelsMode;
    else if (die < 94)
        job.mode = ReadConfigMode;
    else if (die < 97)
        job.mode = WriteConfigMode;
    else
        job.mode = random.Chance(50) ? ReadDebugLogMode : ReadInformationMode;
    for (const auto& [row, texts] : scenario.rows)
        if (random.Chance(85))
            job.selected[row] = true;
    for (const auto& [row, erased] : scenario.erased)
        if (random.Chance(85))
            job.selected[row] = true;
    job.acceptsModes = random.Chance(80);
    job.acceptsPurge = random.Chance(80);

    const int rows = static_cast<int>(std::max(scenario.rows.size(), size_t{3}));
    const int bytes = digital ? 250 + rows * 150 : 30 + rows * 80;
    const bool sends = job.mode == WriteChannelsMode;
    const int faults = random.Chance(10) ? 0 : random.Chance(55) ? 1 : random.Between(2, 5);
    for (int i = 0; i < faults; ++i)
        job.faults.push_back(AnyFault(random, digital, sends ? bytes : 120 + rows * 15,
                                      sends ? (digital ? 120 + rows * 15 : rows) : bytes, rows));
    return job;
}

} // namespace

const char* NameOf(TransferMode mode) {
    switch (mode) {
    case WriteChannelsMode:
        return "write channels";
    case ReadChannelsMode:
        return "read channels";
    case ReadConfigMode:
        return "read configuration";
    case WriteConfigMode:
        return "write configuration";
    case ReadInformationMode:
        return "read information";
    case ReadDebugLogMode:
        return "read debug log";
    }
    return "";
}

Scenario MakeScenario(uint64_t seed) {
    Random random(seed);
    Scenario scenario;
    scenario.seed = seed;
    ChooseRadio(random, scenario);
    FillPage(random, scenario);
    FillRadio(random, scenario);
    scenario.knowsRadio = random.Chance(50);
    ChooseErasures(random, scenario);
    const int jobs = random.Chance(60) ? 1 : random.Between(2, 3);
    for (int i = 0; i < jobs; ++i)
        scenario.jobs.push_back(AnyJob(random, scenario));
    return scenario;
}

void Reduce(Scenario& scenario, const Reduction& reduction) {
    if (reduction.jobs >= 0 && reduction.jobs < static_cast<int>(scenario.jobs.size()))
        scenario.jobs.resize(static_cast<size_t>(reduction.jobs));
    for (size_t job = 0; job < std::min(scenario.jobs.size(), reduction.faults.size()); ++job) {
        std::vector<Fault> left;
        for (const size_t fault : reduction.faults[job])
            left.push_back(scenario.jobs[job].faults.at(fault));
        scenario.jobs[job].faults = std::move(left);
    }
    if (reduction.rows >= 0) {
        while (static_cast<int>(scenario.rows.size()) > reduction.rows) {
            const int row = scenario.rows.rbegin()->first;
            scenario.rows.erase(row);
            scenario.shadows.erase(row);
            for (Job& job : scenario.jobs)
                job.selected.erase(row);
        }
    }
}

} // namespace Campaign
