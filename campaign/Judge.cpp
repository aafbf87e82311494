#include "campaign/Judge.h"

#include "catalogue/RadioTables.h"
#include "catalogue/ZoneSlots.h"

#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <map>

using namespace RadioCatalogue;

namespace Campaign {

namespace {

// Typed from the table of failures, not taken from the drivers.
constexpr const char* PortBox = "Invalid COM Port (or Port in use)";
constexpr const char* AnalogTimeoutBox =
    "Timeout Error\nVerify Radio is in PC Download mode\nand correct COM port is selected";
constexpr const char* DigitalTimeoutBox =
    "Timeout Error\nVerify Radio is in PC Download mode (3-8)\nand correct COM port is selected";
constexpr const char* NoDataBox = "No data selected for transfer to Radio";
constexpr const char* OldSoftwareBox = "Selected operation requires updated software in Radio";
constexpr const char* UnsupportedBox = "The requested function is not supported\nby the firware in the Radio";
constexpr const char* EndLine = "T9030000"; // without its checksum
constexpr const char* Refusal = "T204000001";

// Milliseconds. The pauses are those of the protocols.
constexpr int64_t DigitalSilence = 30'000, AnalogSilence = 5'000, Opening = 6'000, ResultPause = 1'000,
                  Slack = 500;
constexpr int64_t SpeedPause = 50, ShadowPause = 500, HelloPause = 20;
constexpr int64_t CommandPause = 350, LinePause = 2, OpeningWait = 50;

constexpr size_t AnalogLineLength = 76;

bool IsAnalogLine(const std::string& line) {
    return line.size() >= AnalogLineLength;
}

} // namespace

int64_t SilenceUntilTimeout(bool digital) {
    return digital ? DigitalSilence : AnalogSilence;
}

int Judge::Count(std::initializer_list<FaultKind> kinds) const {
    int count = 0;
    for (size_t i = 0; i < m_job.faults.size(); ++i)
        count += m_outcome.happened[i] &&
                 std::find(kinds.begin(), kinds.end(), m_job.faults[i].kind) != kinds.end();
    return count;
}

int Judge::Count() const {
    return static_cast<int>(std::count(m_outcome.happened.begin(), m_outcome.happened.end(), true));
}

const Fault* Judge::Only() const {
    if (Count() != 1)
        return nullptr;
    const auto found = std::find(m_outcome.happened.begin(), m_outcome.happened.end(), true);
    return &m_job.faults[static_cast<size_t>(found - m_outcome.happened.begin())];
}

void Judge::CheckEnd() {
    Expect(!m_outcome.endless, "not even Cancel ended the transfer");
    Expect(!m_outcome.portIsOpen, "the port is still open");
    Expect(m_outcome.contextIsClean, "the context still points to the port or the window");
    Expect(!m_outcome.logIsOpen, "a log is still open");
    // A row goes out once more for each text that a radio sends without being asked, sooner than the line
    // carries it.
    Expect(m_outcome.dropped == 0 || (Happened({FaultKind::Babble}) && Count() > 1),
           std::to_string(m_outcome.dropped) + " bytes were still to be sent when the port was closed");
    const int64_t limit = (m_digital ? DigitalSilence : AnalogSilence + Opening) + ResultPause + Slack;
    Expect(m_outcome.silence <= limit,
           "the transfer went on for " + std::to_string(m_outcome.silence) + " ms after the last byte");
}

void Judge::CheckTexts() {
    const auto box = [&](const std::string& text) {
        Expect(!m_outcome.boxes.empty() && m_outcome.boxes.back() == text,
               "the box isn't \"" + text + "\" but \"" +
                   (m_outcome.boxes.empty() ? "" : m_outcome.boxes.back()) + "\"");
    };
    CheckLastWords();
    Expect(m_outcome.gaugeIsInRange, "the gauge was moved out of its range");
    const std::string item = std::to_string(m_outcome.index - 1);
    switch (m_outcome.status) {
    case TransferComplete:
        Expect(m_outcome.lastStatus.starts_with("Transfer Complete."), "the window doesn't say Complete");
        if (m_job.mode != ReadInformationMode || m_digital)
            Expect(m_outcome.milliseconds - m_outcome.shown >= ResultPause,
                   "the window that says Complete closes at once");
        return ExpectNoFailureBox();
    case TransferPortError:
        return box(PortBox);
    case TransferTimeout:
        return box(m_digital ? DigitalTimeoutBox : AnalogTimeoutBox);
    case TransferCommunicationError:
        return box((m_digital ? "Radio rejected channel " : "Radio rejected item: ") + item);
    case TransferChecksumError:
        Expect(m_digital, "an analog transfer has no checksums");
        return box("Checksum Error on channel " + item);
    case TransferNoDataSelected:
        return box(NoDataBox);
    case TransferInvalidTransmitData:
        return box(OldSoftwareBox);
    case TransferUnsupported:
        return box(UnsupportedBox);
    case TransferCancelled:
        if (m_digital)
            Expect(m_outcome.lastStatus == "Transfer Cancelled.", "the window doesn't say Cancelled");
        return ExpectNoFailureBox();
    default:
        m_broken.push_back("status " + std::to_string(m_outcome.status));
    }
}

/// The radio must not be left waiting for a transfer that is over.
void Judge::CheckLastWords() {
    const std::string last = m_outcome.sent.empty() ? "" : m_outcome.sent.back();
    const bool writes = m_job.mode == WriteChannelsMode || m_job.mode == WriteConfigMode;
    if (m_digital) {
        const bool ends =
            m_outcome.status == TransferCancelled || m_outcome.status == TransferCommunicationError ||
            (m_outcome.status == TransferComplete && (writes || m_job.mode == ReadInformationMode));
        Expect(last.starts_with(EndLine) == ends, ends ? "the radio wasn't told that the transfer is over"
                                                       : "an end record ends a transfer that needs none");
    } else if (m_job.mode == WriteChannelsMode) {
        const bool isEnd = last.starts_with("300 ") || last.starts_with("END ");
        Expect(isEnd == (m_outcome.status == TransferComplete),
               isEnd ? "an end line ends a write that isn't complete" : "a complete write has no end line");
    }
}

void Judge::ExpectNoFailureBox() {
    for (const std::string& text : m_outcome.boxes)
        Expect(text.starts_with("The following operating modes") || text.starts_with("This radio") ||
                   text.starts_with("Close this dialog"),
               "the box \"" + text + "\" in a transfer that hasn't failed");
}

void Judge::CheckZones() {
    if (!m_digital)
        return;
    std::map<std::string, int> taken;
    for (const auto& [row, texts] : m_outcome.world.program.rows) {
        // A shadow that was read has the flag and no slot.
        const bool shadow = std::strtol(texts[MFLG].c_str(), nullptr, 16) & ShadowIndexMask;
        const bool holds = !shadow && (std::strtol(texts[TFLG].c_str(), nullptr, 16) & ZoneTakenFlag);
        if (row == 0) {
            Expect(!holds, "the default row holds a zone slot");
            continue;
        }
        if (!holds)
            continue;
        Expect(!texts[ZONE].empty(), "row " + std::to_string(row) + " holds a slot of no zone");
        ++taken[texts[ZONE]];
    }
    int total = 0, counted = 0;
    for (const auto& [zone, count] : taken) {
        Expect(count <= ZoneCapacity, "zone " + zone + " has " + std::to_string(count) + " memories");
        total += count;
    }
    for (int zone = 0; zone < ZonesPerPage; ++zone)
        counted += m_outcome.world.program.zones[static_cast<size_t>(zone)];
    Expect(total == counted,
           std::to_string(total) + " rows hold a zone slot, " + std::to_string(counted) + " are counted");
}

void Judge::CheckPauses() {
    if (m_digital)
        CheckDigitalPauses();
    else
        CheckAnalogPauses();
}

void Judge::CheckDigitalPauses() {
    const auto isMemory = [](const std::string& line) { return line.starts_with("T143") && line.size() > 8; };
    for (size_t i = 1; i < m_outcome.sent.size(); ++i) {
        const std::string &line = m_outcome.sent[i - 1], &next = m_outcome.sent[i];
        const int64_t pause = m_outcome.sentAt[i].begin - m_outcome.sentAt[i - 1].end;
        // Only an agreement of the radio changes the speed. A list's text in its place leads on without.
        if (line.starts_with("T20600003204") && next != line && !next.starts_with(EndLine) &&
            !next.starts_with(Refusal) && !Happened({FaultKind::Babble, FaultKind::LineBefore}))
            Expect(pause >= SpeedPause, "the radio had no time to change its speed before " + next);
        if (line.starts_with("T007") && next.starts_with("T007") && next != line)
            Expect(pause >= HelloPause, "the next protocol was offered at once");
        // The pass over the shadows begins again at a lower number.
        if (isMemory(line) && isMemory(next) && next.substr(4, 4) < line.substr(4, 4))
            Expect(pause >= ShadowPause, "no pause between primaries and shadows");
    }
}

void Judge::CheckAnalogPauses() {
    for (size_t i = 0; i < m_outcome.sent.size(); ++i) {
        const std::string& line = m_outcome.sent[i];
        const int64_t time = m_outcome.sentAt[i].end - m_outcome.sentAt[i].begin;
        const int64_t characters = static_cast<int64_t>(line.size());
        if (IsAnalogLine(line)) {
            Expect(time >= characters * LinePause, "a line was sent without pauses");
            Expect(time <= characters * LinePause + Slack / 10,
                   "a line took " + std::to_string(time) + " ms");
        } else {
            Expect(time >= characters * CommandPause, "a command was sent without pauses");
        }
        if (i > 0 && IsAnalogLine(line) && !IsAnalogLine(m_outcome.sent[i - 1]))
            Expect(m_outcome.sentAt[i].begin - m_outcome.sentAt[i - 1].end <=
                       CommandPause + OpeningWait + Slack / 10,
                   "a write waits too long for the confirmation that most radios don't send");
    }
}

void Judge::CheckPageOfWrite() {
    const auto& rows = m_outcome.world.program.rows;
    Expect(rows.size() == m_before.program.rows.size(), "a write has made or emptied rows of the page");
    for (const auto& [row, texts] : m_before.program.rows) {
        const auto found = rows.find(row);
        if (found == rows.end())
            continue;
        RowTexts now = found->second;
        now[TFLG] = texts[TFLG];
        Expect(now == texts, "a write has changed row " + std::to_string(row) + " of the page");
    }
}

} // namespace Campaign
