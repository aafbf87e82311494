// Rows of the module page: the row's band decides what its cells accept.
#include "commands/CommandIds.h"
#include "editing/FrequencyCell.h"
#include "editing/ZelkEdit.h"
#include "tests/editing/CellTools.h"
#include "tests/frame/FrameTools.h"

#include <wx/menu.h>
#include <wx/textctrl.h>

using namespace testbench;

namespace {

class ModuleRow : public CellTest {
protected:
    void SetUp() override {
        CellTest::SetUp();
        RetargetModule();
    }

    static void RunOnRow(int command, int row) {
        Grid()->ClearSelection();
        Grid()->SelectRow(row, true);
        ContextRow = row;
        DialogScript dialogs;
        if (command != IdCopyRow)
            dialogs.Expect(DialogKind::Message, AnyText());
        MainFrame->m_contextMenu->SendEvent(command);
    }

    static void MakeAirRow(int row, const char* band = "AM 225-400", const char* frequency = "230.0") {
        Fill({row});
        Choose(row, BAND, band);
        TypeIntoCell(*Grid(), row, RFRQ, frequency);
    }

    const Texts m_militaryLocks{"MODE", "RCOD", "TCOD"};
    const Texts m_airLocks{"RTON", "RCOD", "TTON", "TCOD"};
};

} // namespace

TEST_F(ModuleRow, ThatWasClearedTakesFrequenciesOfTheDefaultBand_Departure) {
    MakeAirRow(5);
    ASSERT_EQ(LocksOf(5), m_militaryLocks);
    RunOnRow(IdClearRow, 5);
    EXPECT_EQ(LocksOf(5), Texts{});
    TypeIntoCell(*Grid(), 5, RFRQ, "40.0");
    EXPECT_EQ(Text(5, RFRQ), "40.0000");
    EXPECT_EQ(Text(5, BAND), "FM 30-50");
    EXPECT_EQ(Text(5, MODE), "N");
}

TEST_F(ModuleRow, ThatIsBlankTakesFrequenciesOfTheDefaultBand_Departure) {
    Choose(0, BAND, "AM 225-400");
    TypeIntoCell(*Grid(), 0, RFRQ, "300.0");
    EXPECT_EQ(LocksOf(5), m_militaryLocks) << "as the default row that will fill it";
    EXPECT_FALSE(RowHasData(5));
    TypeIntoCell(*Grid(), 5, RFRQ, "310.5");
    EXPECT_EQ(Text(5, RFRQ), "310.5000");
    EXPECT_EQ(Text(5, BAND), "AM 225-400");
    EXPECT_EQ(Text(5, MODE), "n/a");
    EXPECT_EQ(LocksOf(5), m_militaryLocks);
    TypeIntoCell(*Grid(), 6, DESC, "SIX");
    EXPECT_EQ(LocksOf(6), m_militaryLocks);
    Choose(0, BAND, "FM 30-50");
    EXPECT_EQ(LocksOf(7), Texts{});
    EXPECT_EQ(LocksOf(5), m_militaryLocks);
}

TEST_F(ModuleRow, ThatWasSetToDefaultsHasTheLocksOfTheDefaultBand_Departure) {
    MakeAirRow(5, "AM 108-138", "121.5");
    ASSERT_EQ(LocksOf(5), m_airLocks);
    RunOnRow(IdDefaultRow, 5);
    EXPECT_EQ(Text(5, BAND), "FM 30-50");
    EXPECT_EQ(LocksOf(5), Texts{});
    TypeIntoCell(*Grid(), 5, RFRQ, "41.0");
    EXPECT_EQ(Text(5, RFRQ), "41.0000");
    EXPECT_EQ(OfferedIn(5, RTON).size(), 65u);
}

TEST_F(ModuleRow, ThatIsPastedHasTheBandOfItsCopy_Departure) {
    MakeAirRow(5);
    Fill({6, 7});
    RunOnRow(IdCopyRow, 5);
    RunOnRow(IdPasteRow, 6);
    EXPECT_EQ(Text(6, BAND), "AM 225-400");
    EXPECT_EQ(LocksOf(6), m_militaryLocks);
    TypeIntoCell(*Grid(), 6, RFRQ, "255.0");
    EXPECT_EQ(Text(6, RFRQ), "255.0000");
    RunOnRow(IdCopyRow, 7);
    RunOnRow(IdPasteRow, 5);
    EXPECT_EQ(LocksOf(5), Texts{});
    TypeIntoCell(*Grid(), 5, RFRQ, "42.0");
    EXPECT_EQ(Text(5, RFRQ), "42.0000");
}

TEST_F(ModuleRow, WhoseBandWasRepairedHasTheLocksOfTheNewOneAndKeepsItsTones_Departure) {
    Choose(0, BAND, "AM 225-400");
    TypeIntoCell(*Grid(), 0, RFRQ, "300.0");
    Fill({5, 6});
    Choose(5, BAND, "FM 30-50");
    TypeIntoCell(*Grid(), 5, RFRQ, "40.0");
    Choose(5, RTON, "67.0");
    SetCell(5, BAND, "no band");
    {
        DialogScript dialogs;
        dialogs.ExpectMessage("Validate Page", "Validate row data");
        RunCommand(IdValidatePage);
    }
    EXPECT_EQ(Text(5, BAND), "AM 225-400");
    EXPECT_EQ(Text(5, RFRQ), "300.0000");
    EXPECT_EQ(LocksOf(5), m_militaryLocks);
    EXPECT_EQ(TextsOf(5, {MODE, RTON, RCOD}), (Texts{"n/a", "67.0", "n/a"}));
    TypeIntoCell(*Grid(), 5, RFRQ, "255.0");
    EXPECT_EQ(Text(5, RFRQ), "255.0000");
}

TEST_F(ModuleRow, OfAnAirBandTakesEightCharactersAfterItWasOfAShorterOne_Departure) {
    Fill({5});
    GoTo(5, RFRQ);
    PressKey("F2"); // makes the control, for a frequency of seven characters
    PressKey("Escape");
    SetCell(5, BAND, "AM 225-400");
    TypeIntoCell(*Grid(), 5, RFRQ, "230.0125");
    EXPECT_EQ(Text(5, RFRQ), "230.0125");
    SetCell(5, BAND, "AM 108-138");
    TypeIntoCell(*Grid(), 5, RFRQ, "121.5");
    EXPECT_EQ(Text(5, RFRQ), "121.500");
}

TEST_F(ModuleRow, WhoseChosenBandItsFrequencyLiesInHasTheLocksOfThatBand) {
    MakeAirRow(5);
    SetCell(5, RFRQ, "40.0000"); // as setting the column to its defaults does
    Choose(5, BAND, "FM 30-50");
    EXPECT_EQ(Text(5, RFRQ), "40.0000");
    EXPECT_FALSE(IsLocked(5, MODE));
}
