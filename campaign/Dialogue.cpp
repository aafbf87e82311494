#include "campaign/Dialogue.h"

#include "catalogue/RowFilling.h"
#include "catalogue/TextNumbers.h"
#include "catalogue/ZoneSlots.h"
#include "editing/PageReset.h"
#include "simulator/DigitalLists.h"
#include "simulator/HexRecord.h"
#include "transfer/AnalogDriver.h"
#include "transfer/TRecordDialogue.h"
#include "transfer/TRecordDriver.h"
#include "transfer/TransferContext.h"
#include "transfer/TransferSession.h"

#include <wx/grid.h>
#include <wx/modalhook.h>
#include <wx/msgdlg.h>

#include <algorithm>
#include <cctype>
#include <set>
#include <utility>

namespace Campaign {

namespace {

/// How long the user looks at a box.
constexpr std::chrono::milliseconds Reading{150};

/// Lines of the program after which the user loses patience, and after which the transfer is given up. No
/// scenario needs as many.
constexpr size_t Patience = 1500, LastLine = 2000;

/// What the user sees of a transfer.
class Display : public TransferProgress {
public:
    Display(Outcome& outcome, std::function<void(const std::string&)> told)
        : m_outcome(outcome), m_told(std::move(told)) {}

    void SetStatus(const wxString& text) override {
        m_outcome.lastStatus = text.utf8_string();
        m_told(m_outcome.lastStatus);
    }
    void AppendStatus(const wxString& text) override { m_outcome.lastStatus += text.utf8_string(); }
    void SetRange(int rows) override { m_outcome.range = rows; }
    int Range() const override { return m_outcome.range; }
    void SetValue(int rows) override {
        m_outcome.gauge = rows;
        m_outcome.gaugeIsInRange = m_outcome.gaugeIsInRange && rows >= 0 && rows <= m_outcome.range;
    }
    void Pulse() override {}
    wxWindow* Window() override { return nullptr; }

private:
    Outcome& m_outcome;
    std::function<void(const std::string&)> m_told;
};

/// The program's port, which remembers what the program writes.
class WatchedPort : public CablePort {
public:
    WatchedPort(VirtualTime& time, Cable& cable, std::function<void(std::string_view)> written)
        : CablePort(time, cable), m_written(std::move(written)) {}

    void write(const wxString& text) override {
        m_written(text.utf8_string());
        CablePort::write(text);
    }

private:
    std::function<void(std::string_view)> m_written;
};

/// Cuts bytes into lines at carriage returns.
class Lines {
public:
    explicit Lines(std::function<void(const std::string&)> take) : m_take(std::move(take)) {}

    void Add(std::string_view bytes) {
        for (const char byte : bytes)
            if ((byte & 0x7F) != '\r')
                m_line += byte;
            else
                m_take(std::exchange(m_line, {}));
    }

private:
    std::function<void(const std::string&)> m_take;
    std::string m_line;
};

/// Answers the boxes of a transfer.
class User : public wxModalDialogHook {
public:
    User(const Job& job, VirtualTime& time, std::vector<std::string>& boxes,
         std::function<void(const std::string&)> told)
        : m_job(job), m_time(time), m_boxes(boxes), m_told(std::move(told)) {
        Register();
    }
    ~User() override { Unregister(); }

protected:
    int Enter(wxDialog* dialog) override {
        const auto* box = dynamic_cast<wxMessageDialog*>(dialog);
        m_boxes.push_back(box ? box->GetMessage().utf8_string() : "a dialog that is no box");
        m_told("box: " + m_boxes.back());
        m_time.AdvanceTo(m_time.Now() + Reading);
        if (m_boxes.back().starts_with("The following operating modes"))
            return m_job.acceptsModes ? wxID_YES : wxID_NO;
        if (m_boxes.back().starts_with("This radio"))
            return m_job.acceptsPurge ? wxID_OK : wxID_CANCEL;
        return wxID_OK;
    }

private:
    const Job& m_job;
    VirtualTime& m_time;
    std::vector<std::string>& m_boxes;
    std::function<void(const std::string&)> m_told;
};

const char* StateName(int index) {
    constexpr const char* names[] = {"hello",   "speed", "modes",   "hardware", "hardware text",
                                     "version", "stamp", "opening", "purge",    "data"};
    if (index >= HelloState && index <= DataState)
        return names[index - HelloState];
    return "data";
}

wxArrayString ConfigToWrite() {
    wxArrayString lines;
    for (const std::string& line : Simulator::DefaultConfig())
        lines.Add(wxString::FromUTF8(line));
    return lines;
}

/// True if the program takes the line for a record that the radio didn't send. The program takes small
/// letters for digits, doesn't compare the count with the length, and its sum leaves out half a byte at the
/// end.
bool FitsItsChecksum(std::string line, const std::set<std::string>& spoken) {
    constexpr size_t letterAndType = 2, checksum = 2;
    if (line.size() < letterAndType + checksum || !line.starts_with('T'))
        return false;
    std::ranges::transform(line, line.begin(),
                           [](unsigned char letter) { return static_cast<char>(std::toupper(letter)); });
    return !spoken.contains(line) && Simulator::IsHex(line.substr(letterAndType)) &&
           Simulator::WithChecksum(line.substr(0, line.size() - checksum)) == line;
}

bool IsClean(const TransferContext& context) {
    return !context.Port && !context.Progress;
}

} // namespace

Outcome RunJob(const Scenario& scenario, const Job& job, const World& world, Sheet& sheet,
               const Narrator& narrator) {
    Outcome outcome;
    VirtualTime time;
    Cable cable(time, job.faults);
    const auto tell = [&](const std::string& line) {
        if (narrator)
            narrator(time.Milliseconds(), line);
    };
    const bool digital = scenario.radio.IsDigital();
    outcome.range = sheet.Rows() + 1;

    std::set<std::string> written, spoken;
    Lines writtenLines([&](const std::string& line) {
        written.insert(line);
        outcome.sent.push_back(line);
    });
    int64_t lineBegan = -1;
    // The radio tests more than the program.
    const auto deceivesRadio = [&](const std::string& line) {
        return !written.contains(line) && (!digital || Simulator::ParseRecord(line));
    };
    const auto deceivesProgram = [&](const std::string& line) {
        return !spoken.contains(line) && (!digital || FitsItsChecksum(line, spoken));
    };
    TransferContext analog;
    TRecordContext record;
    TransferContext& context = digital ? record : analog;
    RadioEnd radio(time, cable, world.radio, [&](std::string_view note) {
        tell(std::string(note));
        if (note.starts_with("< ") && deceivesRadio(std::string(note.substr(2))))
            outcome.forgedToRadio = true;
        if (note == "< ")
            outcome.emptyLines.push_back(StateName(context.Index));
    });

    CableClock clock(time, cable);
    context.Clock = &clock;
    outcome.states.resize(job.faults.size());
    auto display = std::make_unique<Display>(outcome, [&](const std::string& text) {
        outcome.shown = time.Milliseconds();
        tell("shows: " + text);
    });
    Display* const shown = display.get();
    bool over = false;
    cable.Connect({
        .radioHears = [&](uint8_t byte, int baud) { radio.Hear(byte, baud); },
        .radioRestarts = [&] { radio.Restart(); },
        .radioIsLeft = [&] { radio.Leave(); },
        .userCancels =
            [&] {
                if (over)
                    return;
                tell("user presses Cancel");
                outcome.cancelled = outcome.cancelled < 0 ? time.Milliseconds() : outcome.cancelled;
                clock.PressCancel(shown->Cancelled);
            },
        .faultHappens =
            [&](size_t fault) {
                outcome.states[fault] = digital ? StateName(context.Index) : outcome.lastStatus;
                tell("! " + TextOf(job.faults[fault]));
            },
        .radioSends = [&, spokenLines = Lines([&](const std::string& line) { spoken.insert(line); })](
                          std::string_view bytes) mutable { spokenLines.Add(bytes); },
        .programHears = [&, heardLines = Lines([&](const std::string& line) {
                                if (deceivesProgram(line.starts_with('\n') ? line.substr(1) : line) &&
                                    deceivesProgram(line))
                                    outcome.forgedToProgram = true;
                            })](std::string_view bytes) mutable { heardLines.Add(bytes); },
    });

    sheet.Load(world.program);
    if (job.mode == ReadChannelsMode) {
        ResetPage(0);
        EmptyDefaultMemories(0);
    }
    sheet.Select(job.mode == WriteChannelsMode ? job.selected : std::map<int, bool>{});
    if (job.mode == WriteConfigMode)
        context.ConfigLines = ConfigToWrite();

    {
        const User user(job, time, outcome.boxes, tell);
        const auto watch = [&](std::string_view bytes) {
            if (lineBegan < 0)
                lineBegan = time.Milliseconds();
            const size_t before = outcome.sent.size();
            writtenLines.Add(bytes);
            if (outcome.sent.size() == before)
                return;
            outcome.sentAt.push_back({lineBegan, time.Milliseconds()});
            lineBegan = -1;
            if (outcome.sent.size() > LastLine)
                throw Endless{};
            if (outcome.sent.size() == Patience) {
                outcome.gaveUp = true;
                clock.PressCancel(shown->Cancelled);
            }
        };
        auto port = std::make_unique<WatchedPort>(time, cable, watch);
        port->open("cable", 9600);
        TransferMeans means{std::move(display), std::move(port)};
        try {
            outcome.status =
                digital ? TRecordProtocol::TransferWith(record, sheet.Grid(), job.mode, std::move(means))
                        : AnalogProtocol::TransferWith(analog, sheet.Grid(), job.mode, std::move(means));
        } catch (const Endless&) {
            outcome.endless = true;
        }
        over = true;
    }
    outcome.milliseconds = time.Milliseconds();
    outcome.silence =
        std::chrono::duration_cast<std::chrono::milliseconds>(time.Now() - cable.LastByte()).count();
    outcome.portIsOpen = cable.IsOpen();
    outcome.isWritten = cable.IsWritten();
    outcome.index = context.Index;
    outcome.dropped = cable.Dropped();
    outcome.rowsSent = context.RowsSent;
    for (const wxString& line : context.ConfigLines)
        outcome.configLines.push_back(line.utf8_string());
    outcome.logIsOpen =
        context.LogFile.IsOpened() || context.HardwareFile.IsOpened() || context.DebugLogFile.IsOpened();
    outcome.contextIsClean = IsClean(context);
    outcome.happened = cable.Happened();
    outcome.spoiltToRadio = cable.IsSpoilt(Side::ToRadio);
    outcome.spoiltToProgram = cable.IsSpoilt(Side::ToProgram);
    outcome.violations = radio.Violations();
    outcome.complaints = radio.Complaints();
    outcome.answers = radio.Answers();
    outcome.bytesToRadio = cable.Bytes(Side::ToRadio);
    outcome.bytesToProgram = cable.Bytes(Side::ToProgram);
    sheet.Grid()->ClearSelection();
    outcome.world = {sheet.Save(), radio.State()};
    return outcome;
}

World FirstWorld(const Scenario& scenario, Sheet& sheet) {
    sheet.Reset();
    wxGrid* const grid = sheet.Grid();
    for (const auto& [row, texts] : scenario.rows) {
        FillRowsFromDefault({row});
        for (int col = 0; col < ColumnTotal; ++col)
            if (const std::string& text = texts[static_cast<size_t>(col)]; !text.empty())
                grid->SetCellValue(row, col, wxString::FromUTF8(text));
    }
    std::map<int, int> slots;
    for (const auto& [shadow, primary] : scenario.shadows) {
        const int slot = slots[primary]++;
        grid->SetCellValue(shadow, MFLG, wxString::Format("%02X", slot + 1));
        grid->SetCellValue(shadow, PRIM, wxString::Format("%03d", primary));
        grid->SetCellValue(shadow, SHAD, wxString::Format("S-%03d", primary));
        grid->SetCellValue(shadow, SCAN, "N");
        ReleaseP25ZonePosition(FindZone(grid->GetCellValue(shadow, ZONE)));
        grid->SetCellValue(shadow, ZONE, "");
        grid->SetCellValue(shadow, TFLG, FlagText(TransferFlags(grid, shadow) & ~ZoneTakenFlag));
        for (const int column : {RFRQ, TFRQ})
            grid->SetCellValue(shadow, column, grid->GetCellValue(primary, column));
        grid->SetCellValue(primary, MFLG, "10");
        grid->SetCellValue(primary, SHAD, wxString::Format("P-%d", slot + 1));
        grid->SetCellValue(primary, SCAN, "N");
        grid->SetCellValue(primary, SHD0 + slot, wxString::Format("%03d", shadow));
    }
    for (const auto& [row, erased] : scenario.erased)
        grid->SetCellValue(row, TFLG, FlagText(DEF | InRadioFlag | EraseFlag));
    World world{sheet.Save(), scenario.radio};
    world.program.stamp = "";
    world.program.heldStamp = "";
    world.program.heldRows.clear();
    world.program.readBrokeOff = false;
    if (scenario.knowsRadio && scenario.radio.IsDigital()) {
        // As after a read of an empty radio.
        world.program.stamp = world.program.heldStamp =
            wxString::FromUTF8(scenario.radio.digitalHabits.stamp);
        // And of the memories that were erased on the page since.
        std::erase_if(world.radio.digital.memories,
                      [&](const auto& memory) { return !scenario.erased.contains(memory.first); });
        for (const auto& [row, erased] : scenario.erased)
            world.program.heldRows[row] = true;
    }
    return world;
}

} // namespace Campaign
