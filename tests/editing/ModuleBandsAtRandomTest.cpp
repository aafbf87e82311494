// Random work on the module page: the band that a row shows decides what its frequency cells accept, and
// which of its cells are locked.
#include "commands/CommandIds.h"
#include "commands/OpenEditor.h"
#include "editing/FrequencyCell.h"
#include "editing/FrequencyRules.h"
#include "frame/SelectionDialogs.h"
#include "tests/editing/RandomEdits.h"

#include <wx/choice.h>
#include <wx/combobox.h>
#include <wx/textctrl.h>

#include <iostream>

using namespace testbench;
using namespace RadioCatalogue;

namespace {

constexpr int BusyRows = 12;

class ModuleBandsAtRandom : public CommandTest {
protected:
    void SetUp() override {
        CommandTest::SetUp();
        Retarget(Kdrv4xxx, ModuleSlot);
    }

    void TearDown() override {
        CommitOpenEditor();
        CommandTest::TearDown();
    }

    void Work(uint32_t seed, int steps) {
        m_dice = Dice(seed);
        for (int step = 1; step <= steps; ++step) {
            m_story.clear();
            Step();
            // Most of the work is done in the first rows.
            ExpectLocksOfBands(step % 10 == 0 || step == steps ? CurrentParameters().Rows : BusyRows);
            for (int probe = 0; probe < 2; ++probe)
                ExpectEditorOfBand(PickRow());
            if (HasFailure())
                FAIL() << "seed " << seed << ", step " << step << ": " << m_story << "\nbefore: " << m_before;
            m_before = m_story + "; " + m_before.substr(0, 400);
        }
        std::cout << "seed " << seed << ", " << steps << " steps: " << m_accepted << " frequencies taken, "
                  << m_refused << " refused; rows by band " << m_rowsOfBand[0] << ", " << m_rowsOfBand[2]
                  << ", " << m_rowsOfBand[6] << "\n";
        EXPECT_GT(m_accepted, steps / 40);
        EXPECT_GT(m_refused, steps / 40);
        for (int band : {0, 2, 6})
            EXPECT_GT(m_rowsOfBand[band], 0) << "no row was ever of band " << band;
    }

private:
    // An edit fills a row without transfer flags from the default row.
    static bool IsUsed(int row) { return row == 0 || !Cell(row, TFLG).empty(); }

    /// The band that the row shows, or will show once the edit has filled it.
    static int BandShown(int row) { return std::max(FindBand(Cell(IsUsed(row) ? row : 0, BAND)), 0); }

    int PickRow() { return m_dice.Chance(85) ? m_dice.Between(0, BusyRows) : m_dice.Between(0, 500); }
    int PickMemory() { return std::max(PickRow(), 1); }

    void Tell(const std::string& what, int number) { m_story += " " + what + " " + std::to_string(number); }

    wxString RandomFrequency() {
        static constexpr int limits[][2] = {{30, 49}, {108, 137}, {225, 399}};
        const auto& [low, high] = m_dice.Pick(limits);
        // These are on the raster of every band and step.
        static constexpr const char* fractions[] = {"0", "5", "025", "250"};
        return wxString::Format("%d.%s", m_dice.Between(low, high), m_dice.Pick(fractions));
    }

    wxGridCellEditorPtr Open(int row, int col) {
        CurrentGrid()->GoToCell(row, col);
        CurrentGrid()->EnableCellEditControl();
        EXPECT_TRUE(CurrentGrid()->IsCellEditControlShown()) << row << ", " << ColumnTag[col];
        return wxGridCellEditorPtr(CurrentGrid()->GetCellEditor(row, col));
    }

    void EditFrequency() {
        const int row = PickRow();
        const int col = m_dice.Chance(80) ? RFRQ : TFRQ;
        const wxString text = RandomFrequency();
        const int band = BandShown(row);
        const bool wasUsed = IsUsed(row);
        const wxString before = Cell(row, col);
        Tell("type " + text.utf8_string() + " into row", row);
        const wxGridCellEditorPtr editor = Open(row, col);
        dynamic_cast<wxTextCtrl*>(editor->GetControl())->SetValue(text);
        CurrentGrid()->DisableCellEditControl();
        if (CheckFreqInBand(text, band) != 0) {
            ++m_refused;
            EXPECT_EQ(Cell(row, col), before) << text << " is not of band " << band;
            EXPECT_EQ(IsUsed(row), wasUsed);
            return;
        }
        ++m_accepted;
        const wxString now = Cell(row, col);
        EXPECT_TRUE(now.StartsWith(text) || (col == TFRQ && now == "n/a")) << text << " became " << now;
        EXPECT_TRUE(IsUsed(row));
        EXPECT_EQ(BandShown(row), band);
    }

    /// Chooses one of the texts that the cell offers.
    void Choose(int row, int col) {
        if (CurrentGrid()->IsReadOnly(row, col))
            return;
        const wxGridCellEditorPtr editor = Open(row, col);
        auto* combo = dynamic_cast<wxComboBox*>(editor->GetControl());
        ASSERT_NE(combo, nullptr) << row << ", " << ColumnTag[col];
        combo->SetSelection(m_dice.Below(static_cast<int>(combo->GetCount())));
        Tell("choose " + combo->GetValue().utf8_string() + " in row", row);
        CurrentGrid()->DisableCellEditControl();
    }

    void ChooseBand() {
        const int row = m_dice.Chance(20) ? 0 : PickRow();
        Choose(row, BAND);
        m_maybeStale.insert(row);
    }

    void ChooseOther() {
        static constexpr int columns[] = {MODE, RTON, RCOD, TTON, TCOD};
        Choose(PickRow(), m_dice.Pick(columns));
    }

    void SelectSomeRows() {
        CurrentGrid()->ClearSelection();
        for (int count = m_dice.Between(1, 4); count > 0; --count) {
            const int row = PickMemory();
            CurrentGrid()->SelectRow(row, true);
            Tell("row", row);
        }
        ContextRow = PickMemory();
    }

    void RunOnRows(int command, const char* name) {
        m_story += name;
        SelectSomeRows();
        Tell("at", ContextRow);
        Run(command);
    }

    void CopyOne() {
        ContextRow = PickMemory();
        if (!RowHasData(ContextRow))
            return;
        Tell("copy", ContextRow);
        Run(CopyRow);
    }

    void PasteOne() {
        ContextRow = PickMemory();
        Tell("paste", ContextRow);
        if (RowCopyBuffer.empty())
            return;
        // Memory numbers are not under test, and each copied one would raise a question.
        RowCopyBuffer[MNUM] = wxString::Format("%d", ContextRow);
        DialogScript dialogs;
        ExpectQuestion(dialogs, PasteRow);
        MainFrame->m_contextMenu->SendEvent(PasteRow);
    }

    void DefaultColumn(int command) {
        static constexpr int columns[] = {BAND, BAND, RFRQ, TFRQ, MODE, RTON, RCOD, TTON, TCOD, DESC, SCAN};
        const int col = m_dice.Pick(columns);
        Tell(std::string(command == DefaultCol ? "default " : "default marked ") + ColumnTag[col], col);
        CurrentGrid()->SelectCol(col);
        Run(command);
        if (col == BAND)
            for (int row = 1; row <= CurrentParameters().Rows; ++row)
                m_maybeStale.insert(row);
    }

    void Validate() {
        m_story += " validate";
        DialogScript dialogs;
        dialogs.ExpectMessage("Validate Page", "Validate row data");
        RunCommand(IdValidatePage);
    }

    /// Puts invalid bands into rows; the check that follows repairs them.
    void SpoilBandAndValidate() {
        static constexpr const char* bands[] = {"", "no band", "FM 66-88", "fm 30-50", "n/a"};
        for (int count = m_dice.Between(1, 5); count > 0; --count) {
            const int row = PickMemory();
            if (!IsUsed(row))
                continue;
            SetCell(row, BAND, m_dice.Pick(bands));
            Tell("spoil row", row);
            m_maybeStale.erase(row);
        }
        Validate();
    }

    void ChangeTargetTo(int radio, int slot) {
        DialogScript dialogs;
        dialogs.Expect(DialogKind::Message, "Change Target?");
        dialogs.Expect(DialogKind::Other, "<-- Select Target Radio -->")
            .Set([radio](wxDialog*) { RadioChoice->SetSelection(radio); })
            .Answer(wxID_OK);
        if (slot >= 0)
            dialogs.Expect(DialogKind::Other, "<-- Select Frequency Band -->")
                .Set([slot](wxDialog*) { BandChoice->SetSelection(slot); })
                .Answer(wxID_OK);
        RunCommand(IdSetTarget);
    }

    /// Changes to another radio and back again, or from the module to itself.
    void ChangeTargets() {
        static constexpr int others[][2] = {{Kdrv716, -1}, {Krv620, 1}, {Kdar2000, -1}, {Kdrv4xxx, 3}};
        const auto& [radio, slot] = m_dice.Pick(others);
        Tell("change target to", radio);
        if (m_dice.Chance(70))
            ChangeTargetTo(radio, slot);
        ChangeTargetTo(Kdrv4xxx, ModuleSlot);
        m_maybeStale.clear();
    }

    void RunOnPage(int command) {
        m_story += command == InsertRow ? " insert" : command == DeleteRow ? " delete" : " default file";
        SelectSomeRows();
        if (command == DefaultFile) {
            CurrentGrid()->ClearSelection();
            CurrentGrid()->SelectBlock(1, 0, m_dice.Between(1, 8), ColumnTotal - 1);
        }
        Run(command);
        // Rows have moved away from their numbers, so paste would ask. Number them by row.
        Run(ToRowNum);
        m_maybeStale.clear();
    }

    void Step() {
        switch (m_dice.Below(24)) {
        case 0:
        case 1:
        case 2:
        case 3:
            return ChooseBand();
        case 4:
        case 5:
        case 6:
        case 7:
        case 8:
        case 9:
            return EditFrequency();
        case 10:
        case 11:
            return ChooseOther();
        case 12:
        case 13:
            return RunOnRows(ClearRow, " clear");
        case 14:
        case 15:
            return RunOnRows(DefaultRow, " default");
        case 16:
            return CopyOne();
        case 17:
        case 18:
            return PasteOne();
        case 19:
            return m_dice.Chance(50) ? RunOnRows(MarkRow, " mark") : DefaultColumn(DefaultMarked);
        case 20:
            return m_dice.Chance(50) ? DefaultColumn(DefaultCol) : Validate();
        case 21:
            return SpoilBandAndValidate();
        case 22:
            return m_dice.Chance(30) ? ChangeTargets() : Validate();
        default: {
            static constexpr int commands[] = {InsertRow, DeleteRow, DefaultFile};
            return RunOnPage(m_dice.Pick(commands));
        }
        }
    }

    static Texts LocksOfBand(int band) {
        switch (band) {
        case 6:
            return {"MODE", "RCOD", "TCOD"};
        case 2:
            return {"RTON", "RCOD", "TTON", "TCOD"};
        default:
            return {};
        }
    }

    /// Checks rows up to last: locks, and in filled rows the texts "n/a" where the band has no value.
    void ExpectLocksOfBands(int last) {
        for (int row = 0; row <= last; ++row) {
            const int band = BandShown(row);
            if (IsUsed(row))
                ++m_rowsOfBand[band];
            Texts locks;
            for (int col : {MODE, RTON, RCOD, TTON, TCOD})
                // A new band leaves TCOD as it is until the row is set up again.
                if (IsReadOnly(row, col) && !(col == TCOD && band == 0 && m_maybeStale.contains(row)))
                    locks.push_back(ColumnTag[col]);
            EXPECT_EQ(locks, LocksOfBand(band)) << "row " << row << ", band " << Cell(row, BAND);
            for (int col : {MODE, RTON, RCOD, TTON, TCOD})
                if (IsUsed(row) && band != 0 && IsReadOnly(row, col)) {
                    EXPECT_EQ(Cell(row, col), "n/a") << "row " << row << " " << ColumnTag[col];
                }
            if (HasFailure())
                return;
        }
    }

    /// Checks the band and step with which a real edit starts.
    void ExpectEditorOfBand(int row) {
        const int band = BandShown(row), step = GetChannelStep(Kdrv4xxx, band);
        for (int col : {RFRQ, TFRQ}) {
            const wxGridCellEditorPtr editor = Open(row, col);
            const auto* rules = dynamic_cast<const FrequencyValidator*>(editor->GetControl()->GetValidator());
            ASSERT_NE(rules, nullptr);
            EXPECT_EQ(rules->GetBand(), band) << "row " << row << " shows " << Cell(row, BAND);
            EXPECT_EQ(rules->GetStep(), step) << "row " << row;
            editor->Reset();
            CurrentGrid()->DisableCellEditControl();
        }
    }

    Dice m_dice{0};
    /// Rows whose TCOD may still have the lock of an earlier band.
    std::set<int> m_maybeStale;
    int m_accepted = 0, m_refused = 0;
    std::map<int, int> m_rowsOfBand;
    std::string m_story, m_before;
};

} // namespace

TEST_F(ModuleBandsAtRandom, AcceptWhatTheRowShowsThrough1000Steps_Departure) {
    Work(4000, 1000);
}

TEST_F(ModuleBandsAtRandom, AcceptWhatTheRowShowsThrough1000OtherSteps_Departure) {
    Work(20261122, 1000);
}

TEST_F(ModuleBandsAtRandom, AcceptWhatTheRowShowsThroughAThird1000Steps_Departure) {
    Work(716, 1000);
}
