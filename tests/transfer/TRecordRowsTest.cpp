// Choice of the rows that are sent to a digital radio, and their form.
#include "tests/transfer/TRecordDriverTest.h"
#include "transfer/TRecordDialogue.h"

using namespace testbench;
using namespace transfertest;

namespace {

class TRecordRows : public TRecordDriverTest {
protected:
    void SetUp() override {
        TRecordDriverTest::SetUp();
        m_context.XferFlags = 0x30;
        m_context.RadioModes = AllModes;
        m_dialogue.reset(
            new TRecordDialogue{m_context, CurrentGrid(), WriteChannelsMode, CurrentGrid()->GetNumberRows()});
    }

    /// Evaluates the page in its present state.
    void Evaluate() {
        m_context.XferFlags = 0x30;
        m_context.InvalidModes = 0;
        m_dialogue->rowsToSend = 0;
        m_dialogue->markedRows.clear();
        EvaluateRows(*m_dialogue);
    }

    /// The line that is sent for the row at index, without its checksum.
    std::string LineOf(int index) {
        m_context.Index = index;
        m_context.TxLine.clear();
        ChooseRowLine(*m_dialogue);
        return Text(m_context.TxLine);
    }

    static void SelectCell(int row, int column) {
        CurrentGrid()->ClearSelection();
        CurrentGrid()->SelectBlock(row, column, row, column);
    }

    std::unique_ptr<TRecordDialogue> m_dialogue;
};

using TRecordEvaluation = TRecordRows;

} // namespace

TEST_F(TRecordEvaluation, CountsSelectedRowsThatAreDefined) {
    for (const int row : {1, 2, 500, 501, 502})
        FillP25Row(row);
    FillP25Row(3, "21");
    Select({1, 3, 4, 500, 501, 502});
    Evaluate();
    EXPECT_EQ(m_dialogue->rowsToSend, 4);
    EXPECT_EQ(m_context.XferFlags, 0x30u);
    EXPECT_EQ(CellText(1, TFLG), "A1");
    EXPECT_EQ(CellText(2, TFLG), "A0");
    EXPECT_EQ(CellText(3, TFLG), "21");
    EXPECT_EQ(CellText(502, TFLG), "A1");
}

// Intentional: the protocol's set-up would select blank rows too.
TEST_F(TRecordEvaluation, KeepsBlankRowsBlankByDeparture) {
    FillP25Row(1);
    FillP25Row(2, "A0", "01", "001");
    SetCell(1, SHD0, "009");
    Select({1, 2, 3, 501});
    Evaluate();
    EXPECT_EQ(CellText(1, TFLG), "A1");
    for (const int row : {3, 9, 501})
        EXPECT_FALSE(RowHasData(row)) << row;
}

TEST_F(TRecordEvaluation, CountsRowsThatAreToBeErased) {
    FillP25Row(2, "C2");
    FillP25Row(3, "C0");
    FillP25Row(501, "82");
    Evaluate();
    EXPECT_EQ(m_dialogue->rowsToSend, 2);
}

TEST_F(TRecordEvaluation, ForgetsTheSelectionOfEarlierTransfersByDeparture) {
    FillP25Row(1, "E1");
    FillP25Row(2, "A1", "01", "001");
    FillP25Row(3, "C3");
    FillP25Row(4, "E9");
    FillP25Row(501, "A1");
    Select({1});
    Evaluate();
    EXPECT_EQ(m_dialogue->rowsToSend, 2) << "the selected row and the one to be erased";
    EXPECT_EQ(m_context.XferFlags, 0x30u) << "no shadow is sent, so nothing is purged";
    EXPECT_EQ(CellText(1, TFLG), "E1");
    EXPECT_EQ(CellText(2, TFLG), "A0");
    EXPECT_EQ(CellText(3, TFLG), "C2");
    EXPECT_EQ(CellText(4, TFLG), "E8");
    EXPECT_EQ(CellText(501, TFLG), "A0");
    EXPECT_FALSE(RowHasData(5));
}

TEST_F(TRecordEvaluation, KeepsTheSelectionOfTheFamilyOfASelectedShadow) {
    FillP25Row(20, "A1", "10");
    SetCell(20, SHD0, "021");
    SetCell(20, SHD1, "019");
    FillP25Row(21, "A1", "01", "020");
    FillP25Row(19, "A1", "02", "020");
    FillP25Row(22, "A1", "01", "020"); // missing in the primary's list
    Select({21});
    Evaluate();
    for (const int row : {19, 20, 21})
        EXPECT_EQ(CellText(row, TFLG), "A1") << row;
    EXPECT_EQ(CellText(22, TFLG), "A0");
}

TEST_F(TRecordEvaluation, LooksAtTheReceiveColumnOfMemoriesAndTheFirstColumnOfGuards) {
    struct {
        int row, column;
        bool counts;
    } const cases[] = {
        {500, 10, true}, {500, 9, false}, {500, 0, false}, {501, 0, true},  {501, 10, false},
        {502, 0, true},  {1, 10, true},   {1, 11, false},  {502, 1, false},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE("row " + std::to_string(c.row) + ", column " + std::to_string(c.column));
        FillP25Row(c.row);
        SelectCell(c.row, c.column);
        Evaluate();
        EXPECT_EQ(CellText(c.row, TFLG), c.counts ? "A1" : "A0");
        EXPECT_EQ(m_dialogue->rowsToSend, c.counts ? 1 : 0);
        SetCell(c.row, TFLG, "");
    }
}

TEST_F(TRecordEvaluation, FindsOutWhetherTheOldLayoutHoldsARow) {
    struct {
        int row, column;
        const char* text;
        bool fits;
    } const cases[] = {
        {1, PRIM, "230", true},   {1, PRIM, "231", false},  {1, ZONE, "15", true},
        {1, ZONE, "16", false},   {1, ZONE, "A", true},     {1, ZONE, "X", true},
        {1, ZONE, "", true},      {1, SHD0, "230", true},   {1, SHD0, "231", false},
        {1, SHD1, "231", false},  {1, SHD2, "231", false},  {1, SHD3, "231", false},
        {1, SHD4, "231", false},  {1, SHD5, "231", false},  {1, SHD6, "231", false},
        {1, SHD6, "230", true},   {229, ZONE, "16", false}, {230, ZONE, "16", true},
        {231, PRIM, "400", true}, {500, SHD0, "400", true}, {501, ZONE, "16", true},
        {502, PRIM, "231", true},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(std::to_string(c.row) + " " + ColumnTag[c.column] + " " + c.text);
        FillP25Row(c.row);
        Select({c.row});
        SetCell(c.row, c.column, c.text);
        Evaluate();
        EXPECT_EQ(m_context.XferFlags, c.fits ? 0x30u : 0x10u);
        SetCell(c.row, TFLG, "");
    }
}

TEST_F(TRecordEvaluation, DoesNotLookAtRowsThatStayAtHome) {
    FillP25Row(1, "A0", "01", "005");
    SetCell(1, ZONE, "16");
    SetCell(1, MODE, "D");
    m_context.RadioModes = 0;
    Evaluate();
    EXPECT_EQ(m_context.XferFlags, 0x30u);
    EXPECT_EQ(m_context.InvalidModes, 0u);
}

TEST_F(TRecordEvaluation, GathersTheModesThatTheRadioLacks) {
    const int rows[] = {1, 300, 501};
    const char* const modes[] = {"w", "n", "D"};
    for (int i = 0; i < 3; ++i) {
        FillP25Row(rows[i]);
        SetCell(rows[i], MODE, modes[i]);
    }
    Select({1, 300, 501});
    const std::pair<uint32_t, uint32_t> cases[] = {{0x70, 0x00}, {0x30, 0x40}, {0x50, 0x20},
                                                   {0x60, 0x10}, {0x00, 0x70}, {0x8F, 0x70}};
    for (const auto& [radio, lacks] : cases) {
        m_context.RadioModes = radio;
        Evaluate();
        EXPECT_EQ(m_context.InvalidModes, lacks) << "radio modes " << radio;
    }
}

TEST_F(TRecordEvaluation, TakesOverTheMarkOfMemoriesButNotOfGuards) {
    FillP25Row(501, "A4");
    Select({501});
    Evaluate();
    EXPECT_EQ(m_context.XferFlags, 0x30u);
    FillP25Row(1, "A4");
    Select({1, 501});
    Evaluate();
    EXPECT_EQ(m_context.XferFlags, 0x34u);
}

TEST_F(TRecordEvaluation, OfAShadowMarksItsPrimaryAndAllShadowsOfThat) {
    for (const int shadow : {9, 501}) {
        SCOPED_TRACE(shadow);
        FillP25Row(20, "A0", "10");
        SetCell(20, SHD0, std::to_string(shadow));
        SetCell(20, SHD3, "30");
        SetCell(20, SHD6, "031");
        FillP25Row(30, "A0", "04", "020");
        FillP25Row(31, "A0", "07", "020");
        FillP25Row(shadow, "A0", "01", "020");
        Select({shadow});
        Evaluate();
        EXPECT_EQ(m_context.XferFlags, 0x32u);
        EXPECT_EQ(m_dialogue->markedRows, (std::set<int>{20, 30, 31, shadow}));
        for (const int row : {20, 30, 31})
            EXPECT_EQ(CellText(row, TFLG), "A1") << row;
        SetCell(shadow, TFLG, "");
    }
}

TEST_F(TRecordEvaluation, OfAShadowPassesOverNumbersThatAreNoRows) {
    for (const char* primary : {"0", "-1", "503", "99999999999", "x", ""}) {
        FillP25Row(9, "A0", "01", primary);
        Select({9});
        Evaluate();
        EXPECT_EQ(m_context.XferFlags & 0x02, 0x02u);
        EXPECT_TRUE(m_dialogue->markedRows.empty()) << primary;
    }
    FillP25Row(20, "A0", "10");
    const char* const shadows[] = {"503", "-9", "0", "99999999999", "x", "502", ""};
    for (int i = 0; i < 7; ++i)
        SetCell(20, SHD0 + i, shadows[i]);
    FillP25Row(9, "A0", "01", "020");
    Select({9});
    Evaluate();
    EXPECT_EQ(m_dialogue->markedRows, (std::set<int>{20, 502}));
}

TEST_F(TRecordEvaluation, OfAPrimaryMarksNothing) {
    FillP25Row(20, "A0", "10");
    SetCell(20, SHD0, "30");
    Select({20});
    Evaluate();
    EXPECT_EQ(m_dialogue->rowsToSend, 1);
    EXPECT_EQ(m_context.XferFlags, 0x30u);
    EXPECT_TRUE(m_dialogue->markedRows.empty());
}

TEST_F(TRecordRows, NeedAModeThatTheRadioHas) {
    struct {
        const char* mode;
        uint32_t radio, lacks;
    } const cases[] = {
        {"w", 0x40, 0}, {"w", 0x30, 0x40}, {"n", 0x20, 0}, {"n", 0x50, 0x20},
        {"D", 0x10, 0}, {"D", 0x60, 0x10}, {"W", 0, 0},    {"N", 0, 0},
        {"d", 0, 0},    {"", 0, 0},        {"w", 0, 0x40},
    };
    for (const auto& c : cases) {
        SetCell(1, MODE, c.mode);
        EXPECT_EQ(CheckForInvalidOpModes(m_context, 1, c.radio), c.lacks) << c.mode << " " << c.radio;
    }
}

TEST_F(TRecordRows, GoOutByTheirFlagsTheSelectionAndThePass) {
    constexpr uint32_t primaries = 0x10, purged = 0x01, other = 0x08;
    struct {
        const char* what;
        const char* transferFlags;
        const char* flags;
        bool selected;
        uint32_t xferFlags;
        char sent; // 's' for sent, 'e' for erased, or '-'
    } const cases[] = {
        {"selected", "A1", "00", true, primaries, 's'},
        {"not selected", "A1", "00", false, primaries, '-'},
        {"not defined", "21", "00", true, primaries, '-'},
        {"not marked", "A0", "00", true, primaries, '-'},
        {"primary with shadows", "A1", "10", true, primaries, 's'},
        {"primary in the second pass", "A1", "00", true, 0, '-'},
        {"shadow in the first pass", "A1", "01", true, primaries, '-'},
        {"shadow", "A1", "01", true, 0, 's'},
        {"seventh shadow", "A1", "07", true, 0, 's'},
        {"shadow and primary", "A1", "14", true, 0, 's'},
        {"scanned primary", "A1", "08", true, primaries, 's'},
        {"to be erased", "C2", "00", true, primaries, 'e'},
        {"to be erased and sent", "C3", "00", true, primaries, 'e'},
        {"to be erased, not selected", "C2", "00", false, primaries, '-'},
        {"to be erased, never sent", "82", "00", true, primaries, '-'},
        {"to be erased in another radio", "C2", "00", true, primaries | other, '-'},
        {"shadow to be erased", "C2", "01", true, primaries, '-'},
        {"shadow to be erased, second pass", "C2", "01", true, 0, '-'},
        {"to be erased, second pass", "C2", "00", true, 0, '-'},
        {"purged, in the radio, selected", "C0", "00", true, primaries | purged, 's'},
        {"purged, in the radio, not selected", "C0", "00", false, primaries | purged, 's'},
        {"purged, in the radio, not defined", "40", "00", false, primaries | purged, '-'},
        {"purged, not in the radio", "A0", "00", true, primaries | purged, '-'},
        {"purged, not in the radio nor selected", "A1", "00", false, primaries | purged, '-'},
        {"purged, in the radio, shadow", "C0", "02", false, purged, 's'},
        {"purged, in the radio, shadow, first pass", "C0", "02", false, primaries | purged, '-'},
        {"in the radio", "C0", "00", true, primaries, '-'},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        FillP25Row(5, c.transferFlags, c.flags);
        CurrentGrid()->ClearSelection();
        if (c.selected)
            Select({5});
        m_context.XferFlags = c.xferFlags;
        m_dialogue->rowsSent = 0;
        const std::string line = LineOf(5);
        const char sent = line.empty() ? '-' : (line == "T204000510" ? 'e' : 's');
        EXPECT_EQ(sent, c.sent) << line;
        EXPECT_EQ(m_dialogue->rowsSent, c.sent == 's' ? 1 : 0);
        if (c.sent == 's') {
            EXPECT_EQ(line.substr(0, 8), "T1430005");
        }
    }
}

TEST_F(TRecordRows, OfAFamilyGoAlongAfterAPurgeOnly) {
    FillP25Row(5, "A1");
    m_dialogue->markedRows = {5};
    m_context.XferFlags = 0x10;
    EXPECT_EQ(LineOf(5), "");
    m_context.XferFlags = 0x11;
    EXPECT_EQ(LineOf(5).substr(0, 8), "T1430005");
}

TEST_F(TRecordRows, DefaultRowIsNeverRestored) {
    FillP25Row(0, "C0");
    m_context.XferFlags = 0x11;
    EXPECT_EQ(LineOf(0), "");
}

TEST_F(TRecordRows, BehindTheOldLayoutAreSkippedOnItsRadioOnly) {
    struct {
        int radio;
        uint32_t version;
        int index, indexAfter;
    } const cases[] = {{Kdrv716B, 1, 231, 501},
                       {Kdrv716B, 2, 231, 231},
                       {Kdrv716B, 1, 230, 230},
                       {Kdrv716B, 1, 232, 232},
                       {Kdrv716, 1, 231, 231}};
    for (const auto& c : cases) {
        CurrentParameters().Radio = c.radio;
        m_context.RecordVersion = c.version;
        LineOf(c.index);
        EXPECT_EQ(m_context.Index, c.indexAfter) << c.radio << " " << c.version << " " << c.index;
    }
    CurrentParameters().Radio = Kdrv716B;
}

TEST_F(TRecordRows, ThatTheLayoutCannotCarryAreNotCounted) {
    FillP25Row(300, "A1");
    Select({300});
    EXPECT_EQ(LineOf(300), "");
    EXPECT_EQ(m_dialogue->rowsSent, 0);
}
