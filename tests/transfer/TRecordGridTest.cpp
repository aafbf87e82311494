// What a transfer does to a page beside its records: the choice of the layout, flags, the gauge.
#include "tests/transfer/TRecordPage.h"
#include "transfer/DebugLog.h"
#include "transfer/ProgressFrame.h"
#include "transfer/TRecordCodec.h"

#include <wx/gauge.h>

using namespace trecordtest;

namespace {

class TRecordGrid : public TRecordPage {
protected:
    std::string Line(std::uint32_t version, int row) {
        m_context.RecordVersion = version;
        wxString out = "former";
        encodeTrecord(m_context, CurrentGrid(), row, out);
        return out.utf8_string();
    }
};

} // namespace

TEST_F(TRecordGrid, GoesOutInV2OnlyWhenTheRadioHasIt) {
    Open(Kdrv716B);
    Fill(7, Sample, {{MNUM, "499"}});
    EXPECT_EQ(Line(2, 7).substr(0, 20), "T143"
                                        "0007"
                                        "0000"
                                        "0005"
                                        "01F3"); // row, flags, primary, number
    for (const std::uint32_t version : {0u, 1u, 3u})
        EXPECT_EQ(Line(version, 7).substr(0, 14), "T143"
                                                  "01F3"
                                                  "00"
                                                  "05"
                                                  "F3")
            << version;
    EXPECT_EQ(Line(2, 300).length(), 136u);
    EXPECT_EQ(Line(1, 300), "");
}

TEST_F(TRecordGrid, IsReadAsV1OnlyWhenTheRadioHasIt) {
    struct {
        std::uint32_t version;
        int row;
    } const cases[] = {{0, 231}, {1, 501}, {2, 231}, {3, 231}};
    for (const auto& c : cases) {
        Open(Kdrv716B);
        m_context.RecordVersion = c.version;
        EXPECT_EQ(decodeTrecord(m_context, CurrentGrid(), "T14300E7"), 1);
        for (int row : {231, 501})
            EXPECT_EQ(Cell(row, TFLG).starts_with("C"), row == c.row) << "V" << c.version << " row " << row;
    }
}

TEST_F(TRecordGrid, RefusesARowBehindItsLastInBothLayouts) {
    Open(Kdrv716B);
    const wxArrayString before = AllCells();
    m_context.RecordVersion = 1;
    EXPECT_EQ(decodeTrecord(m_context, CurrentGrid(), "T14300E9"), 0);
    m_context.RecordVersion = 2;
    EXPECT_EQ(decodeTrecord(m_context, CurrentGrid(), "T14301F7"), 0);
    EXPECT_TRUE(AllCells() == before);
}

TEST_F(TRecordGrid, TransferFlagsAreAddedToThoseOfTheRow) {
    struct {
        const char* before;
        int bits;
        const char* after;
    } const cases[] = {
        {"A0", 0x01, "A1"}, {"A1", 0x01, "A1"}, {"C8", 0x03, "CB"},
        {"", 0x01, "01"},   {"", 0, "00"},      {"FF", 0x01, "FF"},
    };
    Open(Kdrv716);
    for (const auto& c : cases) {
        SetCell(5, TFLG, c.before);
        SetTFlag(CurrentGrid(), 5, c.bits);
        EXPECT_EQ(Cell(5, TFLG), c.after) << c.before << " with " << c.bits;
    }
}

TEST_F(TRecordGrid, DebugLogMovesTheMainGauge) {
    ProgressFrame progress(MainFrame);
    progress.MainGauge()->SetRange(255);
    m_context.Progress = &progress;
    for (const auto& [address, value] : {std::pair{"0020", 1}, {"1FE0", 255}, {"2000", 0}, {"1000", 128}}) {
        m_context.RxLine = wxString("T1430") + address;
        decodeDebugLog(m_context);
        EXPECT_EQ(progress.MainGauge()->GetValue(), value) << address;
    }
    progress.MainGauge()->SetRange(100);
    decodeDebugLog(m_context); // 128 lies outside
    EXPECT_LE(progress.MainGauge()->GetValue(), 100);
    m_context.Progress = nullptr;
}
