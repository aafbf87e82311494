// Changes from every target to every other one, with random memories. None may be missing in the saved file.
#include "catalogue/TextNumbers.h"
#include "commands/CommandIds.h"
#include "editing/FrequencyRules.h"
#include "files/ChannelFileWriter.h"
#include "frame/SelectionDialogs.h"
#include "tests/editing/RandomEdits.h"
#include "tests/frame/FrameTools.h"
#include "tests/support/ZelkWindowTest.h"

#include <wx/choice.h>
#include <wx/menu.h>
#include <wx/xml/xml.h>

#include <iostream>
#include <map>
#include <set>

using namespace testbench;
using namespace RadioCatalogue;

namespace {

struct Target {
    int radio, slot;

    int Band() const { return RadioBands[radio][slot]; }
    int Type() const { return GetRadioType(radio, Band()); }
    int Rows() const { return RadioRows[radio][slot]; }
    std::string Name() const { return std::string(RadioName[radio]) + " " + BandName[Band()]; }
    /// The bands that its rows can have.
    std::vector<int> RowBands() const {
        return Type() == MDLX ? std::vector<int>{0, 2, 6} : std::vector<int>{Band()};
    }
};

const std::vector<Target>& AllTargets() {
    static const std::vector<Target> targets = [] {
        std::vector<Target> all;
        for (int radio = 0; radio < RadioTotal; ++radio)
            for (int slot = 0; slot < BandSlotTotal && RadioBands[radio][slot] >= 0; ++slot)
                all.push_back({radio, slot});
        return all;
    }();
    return targets;
}

/// A range of whole megahertz in both bands, without the upper limit, and the two bands.
struct SharedRange {
    int low = 0, high = 0, fromBand = 0, toBand = 0;
};

std::vector<SharedRange> RangesOf(const Target& from, const Target& to) {
    std::vector<SharedRange> ranges;
    for (int a : from.RowBands())
        for (int b : to.RowBands()) {
            const int low = std::max(BandLimit[a][0], BandLimit[b][0]);
            const int high = std::min(BandLimit[a][1], BandLimit[b][1]);
            if (low <= high)
                ranges.push_back({low, high, a, b});
        }
    return ranges;
}

/// The test's record of a memory that it has made.
struct Memory {
    wxString frequency, description;
    bool mayBeLost = false; ///< incomplete, or with an invalid number and no other to take
};

class EveryTargetToEvery : public ZelkWindowTest {
protected:
    void Work(uint32_t seed, size_t group, size_t groups) {
        m_dice = Dice(seed);
        const auto& targets = AllTargets();
        ASSERT_EQ(targets.size(), 36u);
        for (size_t i = 0; i < targets.size(); ++i) {
            bool atFirst = false;
            for (size_t j = i; j < targets.size(); ++j) {
                if ((i + j) % groups != group)
                    continue;
                if (!atFirst)
                    Retarget(targets[i].radio, targets[i].slot);
                atFirst = true;
                ChangeWithMemories(targets[i], targets[j]);
                if (i != j)
                    ChangeWithMemories(targets[j], targets[i]);
                if (HasFailure())
                    FAIL() << "seed " << seed;
            }
        }
        std::cout << "seed " << seed << ": " << m_changes << " changes, " << m_sharing
                  << " of them with a band in "
                  << "common; " << m_kept << " memories kept, " << m_untold << " that a save must report\n";
        EXPECT_GT(m_sharing, 0);
        EXPECT_GT(m_untold, 0);
    }

private:
    void ChangeWithMemories(const Target& from, const Target& to) {
        SCOPED_TRACE(from.Name() + " to " + to.Name());
        const std::vector<SharedRange> ranges = RangesOf(from, to);
        MakeMemories(from, to, ranges);
        ChangeTargetUnseen(to);
        ASSERT_EQ(CurrentParameters().Radio, to.radio);
        ASSERT_EQ(CurrentParameters().BandIndex, to.slot);
        ++m_changes;
        m_sharing += !ranges.empty();
        ExpectMemories(from, to, !ranges.empty());
        ExpectSaved();
    }

    static void ChangeTargetUnseen(const Target& to) {
        DialogScript dialogs;
        dialogs.Expect(DialogKind::Message, "Change Target?");
        dialogs.Expect(DialogKind::Other, "<-- Select Target Radio -->")
            .Set([&to](wxDialog*) { RadioChoice->SetSelection(to.radio); })
            .Answer(wxID_OK);
        if (RadioBands[to.radio][1] >= 0)
            dialogs.Expect(DialogKind::Other, "<-- Select Frequency Band -->")
                .Set([&to](wxDialog*) { BandChoice->SetSelection(to.slot); })
                .Answer(wxID_OK);
        wxMenu* menu = nullptr;
        ASSERT_NE(MainFrame->m_menuBar->FindItem(IdSetTarget, &menu), nullptr);
        menu->SendEvent(IdSetTarget); // thousands of changes don't wait for the window to redraw
    }

    /// A row that keeps its place when the page takes the other target.
    int PickRow(const Target& from, const Target& to) {
        const int from2 = from.Rows() - (from.Rows() % 10 == 2 ? 2 : 0);
        // The last row of the smaller page is replaced by the last row of the larger one, or by guards.
        return m_dice.Between(1, std::min(from2, to.Rows() - 3));
    }

    void MakeMemories(const Target& from, const Target& to, const std::vector<SharedRange>& ranges) {
        CurrentGrid()->ClearGrid();
        SetPageDefaults(MainFrame, CurrentPage);
        m_memories.clear();
        for (int count = 8; count > 0; --count) {
            const int row = PickRow(from, to);
            if (m_memories.contains(row))
                continue;
            FillRowsFromDefault({row});
            m_memories[row] = MakeMemory(from, row, ranges);
        }
        GiveOddNumbers(from, to);
        m_guardsUsed = GD1 > 0 && m_dice.Chance(50);
        if (m_guardsUsed)
            for (int row : {GD1, GD2}) {
                FillRowsFromDefault({row});
                SetCell(row, DESC, row == GD1 ? "GUARD A" : "GUARD B");
            }
        else if (GD1 > 0)
            for (int row : {GD1, GD2})
                ClearRowData(row, false);
        if (!m_memories.contains(1))
            ClearRowData(1, false);
    }

    Memory MakeMemory(const Target& from, int row, const std::vector<SharedRange>& ranges) {
        SharedRange range{0, 0, m_dice.Pick(from.RowBands()), -1};
        if (ranges.empty())
            range.low = BandLimit[range.fromBand][0], range.high = BandLimit[range.fromBand][1];
        else
            range = m_dice.Pick(ranges);
        if (from.Type() == MDLX)
            SetCell(row, BAND, BandName[range.fromBand]);
        Memory memory;
        memory.frequency = FrequencyIn(range, GetChannelStep(from.radio, range.fromBand));
        memory.description = wxString::Format("D%dX%c", row, 'A' + m_dice.Below(26));
        for (int col : {RFRQ, TFRQ})
            SetCell(row, col, memory.frequency);
        if (from.Type() != O12)
            SetCell(row, DESC, memory.description);
        PickOthers(from.Type(), row);
        if (m_dice.Chance(50))
            // Clears the hidden cells, as a check or a file does.
            for (int col = 0; col < ColumnTotal; ++col)
                if (ColumnWidth[from.Type()][col] == 0 && col != TFLG)
                    SetCell(row, col, "");
        EXPECT_TRUE(RowIsComplete(row)) << "the test's own row";
        return memory;
    }

    wxString FrequencyIn(const SharedRange& range, int step) {
        const char* fraction = "0000";
        int megahertz = range.low;
        if (range.low < range.high) {
            megahertz = m_dice.Between(range.low, range.high - 1);
            static constexpr const char* fractions[] = {"0000", "0250", "5000", "9750"};
            fraction = m_dice.Pick(fractions);
        }
        const wxString text = wxString::Format("%d.%s", megahertz, fraction);
        return step == 8333 ? text.Left(text.length() - 1) : step == 1250 ? text + "0" : text;
    }

    /// Sets random values in cells that the type shows.
    void PickOthers(int type, int row) {
        if (IsP25Type(type)) {
            SetCell(row, MODE, m_dice.Pick(P25Modes));
            if (Cell(row, MODE) == "D") {
                SetCell(row, RSQL, m_dice.Pick(RxDigitalSquelch));
                SetCell(row, TSQL, m_dice.Pick(TxDigitalSquelch));
            }
            SetCell(row, RTON, m_dice.Pick(CtcssTexts));
            SetCell(row, SCAN, m_dice.Pick(ScanYesNo));
            SetCell(row, TIDC, wxString::Format("%d", m_dice.Below(1000)));
            if (type == NP25)
                SetCell(row, RNSV, wxString::Format("%d", m_dice.Below(16)));
        } else if (type == KDAR) {
            SetCell(row, SCAN, m_dice.Pick(ScanYesNo));
            SetCell(row, RONL, m_dice.Pick(ScanYesNo));
        } else if (type == ANFM || type == MDLX) {
            SetCell(row, SCAN, wxString::Format("%d", m_dice.Below(32)));
            if (m_dice.Chance(50))
                SetCell(row, RTON, m_dice.Pick(ToneTexts));
            else
                SetCell(row, RCOD, m_dice.Pick(CodeTexts));
        }
    }

    /// Sets numbers that the new page can't have, swaps the numbers of two rows, and makes memories that a
    /// save leaves out.
    void GiveOddNumbers(const Target& from, const Target& to) {
        auto next = m_memories.begin();
        if (from.Rows() > to.Rows() + 3 && next != m_memories.end())
            SetCell((next++)->first, MNUM, NumberText(m_dice.Between(to.Rows() + 1, from.Rows() - 3)));
        if (m_memories.size() < 5)
            return;
        const int a = (next++)->first, b = (next++)->first;
        SetCell(a, MNUM, NumberText(b));
        SetCell(b, MNUM, NumberText(a));
        if (!m_dice.Chance(30))
            return;
        SetCell(next->first, MNUM, "");
        next->second.mayBeLost = true;
    }

    void ExpectMemories(const Target& from, const Target& to, bool sharing) {
        for (const auto& [row, memory] : m_memories) {
            ASSERT_TRUE(RowHasData(row)) << "row " << row;
            EXPECT_EQ(RowIsComplete(row), !memory.mayBeLost)
                << "row " << row << ": " << testing::PrintToString(testbench::RowTexts(row));
            if (from.Type() != O12 && to.Type() != O12) {
                EXPECT_EQ(Cell(row, DESC), memory.description) << "row " << row;
            }
            if (!sharing)
                continue;
            EXPECT_EQ(Cell(row, RFRQ), memory.frequency) << "row " << row;
            EXPECT_NE(CurrentGrid()->GetCellBackgroundColour(row, RFRQ), FailColour) << "row " << row;
        }
        if (m_guardsUsed && GD1 > 0) {
            EXPECT_EQ(Cell(GD1, DESC), "GUARD A");
            EXPECT_EQ(Cell(GD2, DESC), "GUARD B");
        }
    }

    /// Expects every row with data in the file, unless the save reports that it was left out.
    void ExpectSaved() {
        wxXmlDocument document;
        const std::vector<int> leftOut = BuildChannelFile(CurrentPage, document);
        std::set<long> saved;
        for (const wxXmlNode* node = document.GetRoot()->GetChildren(); node; node = node->GetNext()) {
            long row = 0;
            if (node->GetName() == "MEMORY" && node->GetAttribute("row").ToLong(&row) && row > 0)
                saved.insert(row);
        }
        std::vector<int> missing;
        for (int row : FilledRows())
            if (!saved.contains(row)) {
                missing.push_back(row);
                EXPECT_TRUE(m_memories.contains(row) && m_memories[row].mayBeLost) << "row " << row;
            }
        EXPECT_EQ(leftOut, missing);
        m_kept += static_cast<int>(saved.size());
        m_untold += static_cast<int>(missing.size());
    }

    Dice m_dice{0};
    std::map<int, Memory> m_memories;
    bool m_guardsUsed = false;
    int m_changes = 0, m_sharing = 0, m_kept = 0, m_untold = 0;
};

} // namespace

TEST_F(EveryTargetToEvery, KeepsCompleteMemoriesInTheFileFirstQuarter_Departure) {
    Work(1, 0, 4);
}

TEST_F(EveryTargetToEvery, KeepsCompleteMemoriesInTheFileSecondQuarter_Departure) {
    Work(2, 1, 4);
}

TEST_F(EveryTargetToEvery, KeepsCompleteMemoriesInTheFileThirdQuarter_Departure) {
    Work(3, 2, 4);
}

TEST_F(EveryTargetToEvery, KeepsCompleteMemoriesInTheFileFourthQuarter_Departure) {
    Work(4, 3, 4);
}
