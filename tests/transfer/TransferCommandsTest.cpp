// The commands that read from and write to the radio: what they refuse, ask and report.
#include "tests/support/Keys.h"
#include "tests/transfer/TransferTest.h"
#include "transfer/TransferStatus.h"
#include "transfer/ZelkTransfer.h"

#include <wx/textentry.h>

#include <functional>
#include <vector>

using namespace testbench;
using namespace transfertest;
using namespace RadioCatalogue;

namespace {

constexpr const char* PortBox = "Invalid COM Port (or Port in use)";
constexpr const char* GuardBox = "For single channel analog radios\n(KRV-21, 47, 214, 214B 305):\n\n"
                                 "At least one Main channel and\n both Guards must be selected!";

class ReadCommand : public TransferTest {};

class SendCommand : public TransferTest {
protected:
    void SetUp() override {
        TransferTest::SetUp();
        PortName = NoSuchPort;
    }
};

/// Keeps the title of the progress window that is open while a box of the driver is shown.
std::function<void(wxDialog*)> KeepTitle(std::string& title) {
    return [&title](wxDialog*) {
        title = OpenProgress() ? Text(OpenProgress()->GetTitle()) : std::string("no progress window");
    };
}

} // namespace

TEST_F(ReadCommand, AnsweredWithCancelDoesNothing) {
    PortName = NoSuchPort;
    FillRow(1, "66.0000");
    const std::string before = PageText();
    DialogScript script;
    ExpectQuestion(script, wxID_CANCEL);
    Download();
    EXPECT_EQ(PageText(), before);
}

TEST_F(ReadCommand, WithoutRadioIsRefused) {
    PortName = NoSuchPort;
    FillRow(1, "66.0000");
    const std::string before = PageText();
    CurrentParameters().Radio = -1;
    DialogScript script;
    ExpectQuestion(script);
    ExpectBox(script, "Error!", "No target radio selected!");
    Download();
    CurrentParameters().Radio = Krv47;
    EXPECT_EQ(PageText(), before);
}

TEST_F(ReadCommand, WithoutPortClearsNothing) {
    FillRow(1, "66.0000");
    const std::string before = PageText();
    DialogScript script;
    ExpectQuestion(script);
    ExpectBox(script, "Error!", "No Port selected!");
    Download();
    EXPECT_EQ(PageText(), before);
}

TEST_F(ReadCommand, WithAPortThatCannotBeOpenedLeavesAnEmptyPageAndTwoBoxes) {
    PortName = NoSuchPort;
    FillRow(1, "66.0000");
    FillRow(122, "66.0000");
    SetCell(0, DESC, "changed");
    DialogScript script;
    ExpectQuestion(script);
    ExpectDriverBox(script, PortBox);
    ExpectBox(script, "Read from Radio Status", "Port Error");
    Download();
    EXPECT_EQ(FilledRows().size(), 0u);
    EXPECT_EQ(CellText(0, DESC), "LOW    66");
    ExpectOver();
}

TEST_F(ReadCommand, NamesTheRadioTypeInItsTitle) {
    struct {
        int radio, band;
        const char* title;
    } const cases[] = {
        {Krv47, 0, "Read ANFM Memory Data Progress"},
        {Orv12, 0, "Read O12 Memory Data Progress"},
        {Kdar2000, 0, "Read KDAR Memory Data Progress"},
        {Kdrv8400, 1, "Read ANAM Memory Data Progress"},
        {Kdrv4xxx, ModuleSlot, "Read MDLX Memory Data Progress"},
        {Kdrv716, 0, "Read RP25 Memory Data Progress"},
        {Kdrv716B, 0, "Read NP25 Memory Data Progress"},
    };
    PortName = NoSuchPort;
    for (const auto& c : cases) {
        Retarget(c.radio, c.band);
        std::string title;
        DialogScript script;
        ExpectQuestion(script);
        ExpectDriverBox(script, PortBox).Set(KeepTitle(title));
        ExpectBox(script, "Read from Radio Status", "Port Error");
        Download();
        EXPECT_EQ(title, c.title);
        ExpectOver();
    }
}

TEST_F(ReadCommand, OnAnAirbandPageWithTonesIsAnalog) {
    PortName = NoSuchPort;
    CurrentParameters().Type = FXAM;
    std::string title;
    DialogScript script;
    ExpectQuestion(script);
    ExpectDriverBox(script, PortBox).Set(KeepTitle(title));
    ExpectBox(script, "Read from Radio Status", "Port Error");
    Download();
    EXPECT_EQ(title, "Read FXAM Memory Data Progress");
}

TEST_F(ReadCommand, OnAModuleBandWithoutDriverIsUnsupportedAndClearsNothing) {
    Retarget(Kdrv4xxx, ModuleSlot);
    CurrentParameters().Band = 0;
    PortName = NoSuchPort;
    FillRow(1, "31.0000");
    const std::string before = PageText();
    DialogScript script;
    ExpectQuestion(script);
    ExpectBox(script, "Read from Radio Status", "Protocol is Unsupported");
    Download();
    EXPECT_EQ(PageText(), before);
}

TEST_F(ReadCommand, ThatFailsOnADigitalPageLeavesItEmptyAndGivesItsZoneSlotsBack) {
    Retarget(Kdrv716, 0);
    PortName = NoSuchPort;
    ASSERT_EQ(FilledRows().size(), 3u);
    DialogScript script;
    ExpectQuestion(script);
    ExpectDriverBox(script, PortBox);
    ExpectBox(script, "Read from Radio Status", "Port Error");
    Download();
    EXPECT_EQ(FilledRows().size(), 0u);
    for (int zone = 0; zone < ZonesPerPage; ++zone)
        EXPECT_EQ(ZoneSlots[zone], 0) << "zone " << zone;
}

TEST_F(ReadCommand, LeavesTheEditorsOfThePage) {
    PortName = NoSuchPort;
    CurrentGrid()->SetReadOnly(121, SCAN, false);
    DialogScript script;
    ExpectQuestion(script);
    ExpectDriverBox(script, PortBox);
    ExpectBox(script, "Read from Radio Status", "Port Error");
    Download();
    for (const int column : {MNUM, SCAN, RCOD, RTON})
        for (const int row : {121, 122})
            EXPECT_TRUE(CurrentGrid()->IsReadOnly(row, column)) << row << " " << ColumnTag[column];
    EXPECT_TRUE(CurrentGrid()->IsReadOnly(0, MNUM));
    EXPECT_FALSE(CurrentGrid()->IsReadOnly(1, MNUM));
}

TEST_F(ReadCommand, TakesTheTextOfAnOpenEditorFirst) {
    FillRow(1, "66.0000");
    CurrentGrid()->SetGridCursor(1, DESC);
    CurrentGrid()->EnableCellEditControl();
    ASSERT_TRUE(CurrentGrid()->IsCellEditControlShown());
    const wxObjectDataPtr<wxGridCellEditor> editor(CurrentGrid()->GetCellEditor(1, DESC));
    auto* typed = dynamic_cast<wxTextEntry*>(editor->GetWindow());
    ASSERT_NE(typed, nullptr);
    typed->ChangeValue("LAKE");
    DialogScript script;
    ExpectQuestion(script, wxID_CANCEL).Set([](wxDialog*) { EXPECT_EQ(CellText(1, DESC), "LAKE"); });
    Download();
    EXPECT_FALSE(CurrentGrid()->IsCellEditControlShown());
}

TEST_F(SendCommand, WithoutPortIsRefused) {
    PortName = "none";
    FillRow(1, "66.0000");
    Select({1});
    DialogScript script;
    ExpectBox(script, "Error!", "No Port selected!");
    Upload();
}

TEST_F(SendCommand, WithoutSelectedRowsIsRefused) {
    FillRow(1, "66.0000");
    CurrentGrid()->ClearSelection();
    DialogScript script;
    ExpectBox(script, "Error!", "No data selected!");
    Upload();
}

TEST_F(SendCommand, WithSingleCellsSelectedIsRefused) {
    FillRow(1, "66.0000");
    CurrentGrid()->SelectBlock(1, MNUM, 3, DESC);
    DialogScript script;
    ExpectBox(script, "Error!", "No data selected!");
    Upload();
}

TEST_F(SendCommand, OnAKdarPageStartsNoDriverAndShowsTheStatusBox) {
    Retarget(Kdar2000, 0);
    FillRow(1, "118.000");
    Select({1});
    DialogScript script;
    ExpectBox(script, "Write to Radio Status", "Protocol is Unsupported");
    Upload();
}

TEST_F(SendCommand, OnAnO12PageShowsTwoBoxes) {
    Retarget(Orv12, 0);
    FillRow(1, "118.000");
    Select({1});
    DialogScript script;
    ExpectBox(script, "Error!", "ORV-12 is not currently supported!");
    ExpectBox(script, "Write to Radio Status", "Protocol is Unsupported");
    Upload();
}

TEST_F(SendCommand, NamesTheKindOfRadioInItsTitle) {
    struct {
        int radio, band;
        const char* title;
    } const cases[] = {
        {Krv650, 1, "Send to ANFM Radio Progress"},
        {Kdrv8400, 1, "Send to ANFM Radio Progress"},
        {Kdrv4xxx, 0, "Send to ANFM Radio Progress"},
        {Kdrv4xxx, ModuleSlot, "Send to MDLX K6 Module Progress"},
        {Kdrv716, 0, "Send to RP25 Radio Progress"},
        {Kdrv716B, 0, "Send to RP25 Radio Progress"},
    };
    for (const auto& c : cases) {
        Retarget(c.radio, c.band);
        FillRow(1, "138.0000");
        Select({1});
        std::string title;
        DialogScript script;
        ExpectDriverBox(script, PortBox).Set(KeepTitle(title));
        ExpectBox(script, "Write to Radio Status", "Port Error");
        Upload();
        EXPECT_EQ(title, c.title);
        ExpectOver();
    }
}

TEST_F(SendCommand, GivesTheKeyboardBackToTheGrid) {
    ShowAndFocus(*MainFrame);
    Retarget(Krv610, 0);
    FillRow(1, "155.0000");
    CurrentGrid()->SelectRow(1);
    CurrentGrid()->GoToCell(1, DESC);
    CurrentGrid()->SetFocus();
    ASSERT_TRUE(PumpUntil([] { return CurrentGrid()->HasFocus(); }));
    DialogScript script;
    ExpectDriverBox(script, PortBox);
    ExpectBox(script, "Write to Radio Status", "Port Error");
    Upload();
    EXPECT_TRUE(PumpUntil([] { return CurrentGrid()->HasFocus() && MainFrame->IsActive(); }));
    PumpUntilIdle();
    PressKey("Down");
    EXPECT_TRUE(PumpUntil([] { return CurrentGrid()->GetGridCursorRow() == 2; }));
}

TEST_F(SendCommand, LeavesPageAndSelectionAsTheyWere) {
    Retarget(Krv650, 1);
    FillRow(1, "138.0000");
    FillRow(3, "139.0000");
    Select({1, 3});
    const std::string before = PageText();
    DialogScript script;
    ExpectDriverBox(script, PortBox);
    ExpectBox(script, "Write to Radio Status", "Port Error");
    Upload();
    EXPECT_EQ(PageText(), before);
    EXPECT_EQ(CurrentGrid()->GetSelectedRows().size(), 2u);
}

TEST_F(SendCommand, OfASingleChannelRadioWantsBothGuards) {
    struct Case {
        const char* name;
        std::vector<int> offsets; ///< selected rows, guards as -1 and -2
        std::vector<int> filled;
        bool good;
    };
    const Case cases[] = {
        {"both guards and a main channel", {1, -2, -1}, {1, -2, -1}, true},
        {"both guards only", {-2, -1}, {-2, -1}, true},
        {"first guard not selected", {1, -1}, {1, -2, -1}, false},
        {"second guard not selected", {1, -2}, {1, -2, -1}, false},
        {"first guard without data", {1, -2, -1}, {1, -1}, false},
        {"second guard without data", {1, -2, -1}, {1, -2}, false},
        {"no guard", {1, 2}, {1, 2}, false},
    };
    struct {
        int radio, firstGuard;
    } const radios[] = {{Krv21, 121}, {Krv47, 121}, {Krv214, 101}, {Krv214B, 121}, {Krv305, 121}};
    for (const auto& [radio, firstGuard] : radios) {
        for (const Case& c : cases) {
            Retarget(radio, 0);
            const auto row = [first = firstGuard](int offset) {
                return offset > 0 ? offset : first + 2 + offset;
            };
            for (const int offset : c.filled)
                FillRow(row(offset), "66.0000");
            CurrentGrid()->ClearSelection();
            for (const int offset : c.offsets)
                CurrentGrid()->SelectRow(row(offset), true);
            EXPECT_EQ(MainAndGuardsAreSelected(), c.good) << "radio " << radio << ", " << c.name;
            DialogScript script;
            if (c.good) {
                ExpectDriverBox(script, PortBox);
                ExpectBox(script, "Write to Radio Status", "Port Error");
            } else {
                ExpectBox(script, "Error!", GuardBox);
            }
            Upload();
            EXPECT_EQ(script.Missing(), 0u) << "radio " << radio << ", " << c.name;
        }
    }
}

TEST_F(SendCommand, OfASingleChannelRadioTakesTheDefaultRowForTheMainChannels) {
    FillRow(121, "66.0000");
    FillRow(122, "66.0000");
    Select({121, 122});
    EXPECT_TRUE(MainAndGuardsAreSelected());
    ClearRowData(0, false);
    EXPECT_FALSE(MainAndGuardsAreSelected());
}

TEST_F(SendCommand, OfASingleChannelRadioWithTooFewRowsIsRefused) {
    CurrentGrid()->DeleteRows(100, 23);
    FillRow(1, "66.0000");
    Select({1});
    DialogScript script;
    ExpectBox(script, "Error!", GuardBox);
    Upload();
}

TEST_F(SendCommand, OfAnotherRadioNeedsNoGuards) {
    Retarget(Krv610, 0);
    ASSERT_EQ(GD1, 201);
    FillRow(1, "138.0000");
    Select({1});
    DialogScript script;
    ExpectDriverBox(script, PortBox);
    ExpectBox(script, "Write to Radio Status", "Port Error");
    Upload();
}

TEST_F(SendCommand, ClosesAnOpenEditorFirst) {
    FillRow(1, "66.0000");
    CurrentGrid()->SetGridCursor(1, DESC);
    CurrentGrid()->EnableCellEditControl();
    CurrentGrid()->ClearSelection();
    DialogScript script;
    ExpectBox(script, "Error!", "No data selected!");
    Upload();
    EXPECT_FALSE(CurrentGrid()->IsCellEditControlShown());
}
