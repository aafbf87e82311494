#include "tests/transfer/TRecordPage.h"
#include "transfer/TRecordCodec.h"

using namespace trecordtest;

namespace {

class TRecordV1 : public TRecordPage {
protected:
    static std::string Line(int row) {
        wxString out = "former";
        encodeTrecordV1(CurrentGrid(), row, out);
        return out.utf8_string();
    }
};

/// The usual memory below, as read from the radio.
const Cells Received = {
    {MFLG, "00"},     {MNUM, "005"},  {PRIM, "005"},      {SHAD, "N"},        {SCAN, "N"},  {ZONE, "3"},
    {DESC, "HILL 4"}, {MODE, "n"},    {RFRQ, "154.1250"}, {RSQL, "t"},        {RNSV, "10"}, {RTON, "100.0"},
    {RCOD, "025"},    {RTGP, "0A1B"}, {RNAC, "293"},      {TFRQ, "159.0000"}, {TSQL, "c"},  {TTON, "67.0"},
    {TCOD, "025"},    {TTGP, "FFFE"}, {TNAC, "F7E"},      {TIDC, "1234567"},  {SHD0, "0"},  {SHD1, "0"},
    {SHD2, "0"},      {SHD3, "0"},    {SHD4, "0"},        {SHD5, "0"},        {SHD6, "0"},  {TFLG, "C8"},
};

// clang-format off
/// Row 0 of a new page of the first generation.
const Cells DefaultCells = {
    {MFLG, "0"}, {MNUM, "0"}, {PRIM, "0"}, {ZONE, "1"}, {DESC, "VHF  136"}, {MODE, "n"}, {RFRQ, "136.0000"}, {RSQL, "x"},
    {RTON, "67.0"}, {RCOD, "023"}, {RTGP, "0001"}, {RNAC, "293"}, {TFRQ, "174.0000"}, {TSQL, "x"}, {TTON, "67.0"},
    {TCOD, "023"}, {TTGP, "0001"}, {TNAC, "293"}, {TIDC, "00000001"},
};

const EncodeCase<V1Line> ToRadio[] = {
    {"a usual memory", Kdrv716, 5, {}, {}, {}},
    {"everything at its lowest", Kdrv716, 1, {{MFLG, "00"}, {MNUM, "001"}, {PRIM, "000"}, {ZONE, "1"},
      {DESC, ""}, {MODE, "w"}, {RFRQ, "136.0000"}, {RSQL, "x"}, {RTGP, "0000"}, {RTON, "67.0"},
      {RCOD, "023"}, {RNAC, "000"}, {TFRQ, "136.0000"}, {TSQL, "-"}, {TTGP, "0000"}, {TTON, "67.0"},
      {TCOD, "023"}, {TNAC, "000"}, {TIDC, "0"}}, {},
     {.address = "0001", .primary = "00", .number = "01", .zone = "00", .description = "2020202020202020",
      .mode = "77", .rxFrequency = "3133362E30303030", .rxSquelch = "78", .rxGroup = "0000", .rxTone = "01",
      .rxCode = "00", .rxNac = "0000", .txFrequency = "3133362E30303030", .txSquelch = "2D",
      .txGroup = "0000", .txNac = "0000", .unitId = "00000000"}},
    {"everything at its highest", Kdrv716, 230, {{MFLG, "3FF"}, {MNUM, "230"}, {PRIM, "230"}, {ZONE, "16"},
      {DESC, "ZZZZZZZZ"}, {MODE, "D"}, {RFRQ, "173.9975"}, {RSQL, "g"}, {RTGP, "FFFF"}, {RTON, "254.8"},
      {RCOD, "754"}, {RNAC, "FFF"}, {TFRQ, "174.0000"}, {TSQL, "i"}, {TTGP, "FFFF"}, {TTON, "254.8"},
      {TCOD, "754"}, {TNAC, "FFF"}, {TIDC, "9999999"}}, {},
     {.address = "00E6", .flags = "7F", .primary = "E6", .number = "E6", .zone = "F0",
      .description = "5A5A5A5A5A5A5A5A", .mode = "44", .rxFrequency = "3137332E39393735", .rxSquelch = "67",
      .rxGroup = "FFFF", .rxTone = "2A", .rxCode = "52", .rxNac = "0FFF", .txFrequency = "3137342E30303030",
      .txSquelch = "69", .txGroup = "FFFF", .txTone = "2A", .txCode = "53", .txNac = "0FFF",
      .unitId = "0098967F", .flagsHigh = "03"}},
    {"OFF codes and unknown zone and tones", Kdrv716, 5, {{ZONE, "A"}, {RTON, "OFF"}, {RCOD, "OFF"},
      {TTON, "12.3"}, {TCOD, "OFF"}}, {},
     {.zone = "00", .rxTone = "00", .rxCode = "FF", .txTone = "00", .txCode = "00"}},
    {"codes and tones that no list has", Kdrv716, 5, {{ZONE, "17"}, {RTON, "67"}, {RCOD, "999"},
      {TTON, "OFF"}, {TCOD, "24"}}, {},
     {.zone = "00", .rxTone = "00", .rxCode = "FF", .txTone = "00", .txCode = "00"}},
    {"values wider than their fields", Kdrv716, 5, {{MFLG, "E5A"}, {MNUM, "300"}, {PRIM, "257"},
      {DESC, "ABCDEFGHIJ"}, {RFRQ, "154.12345"}, {RTGP, "12345"}, {RNAC, "F293"}, {TFRQ, "159.00125"},
      {TTGP, "ABCDE"}, {TNAC, "F293"}, {TIDC, "-1"}}, {},
     {.address = "012C", .flags = "5A", .primary = "01", .number = "2C", .description = "4142434445464748",
      .rxFrequency = "3135342E31323334", .rxGroup = "2345", .txFrequency = "3135392E30303132",
      .txGroup = "BCDE", .txNac = "F293", .unitId = "FFFFFFFF", .flagsHigh = "02"}},
    {"an empty row takes letters of the default row", Kdrv716, 5, EmptyCells, {},
     {.address = "0000", .primary = "00", .number = "00", .zone = "00", .description = "2020202020202020",
      .rxFrequency = "3030302E30303030", .rxSquelch = "78", .rxGroup = "0000", .rxTone = "00",
      .rxCode = "FF", .rxNac = "0000", .txFrequency = "3030302E30303030", .txSquelch = "78",
      .txGroup = "0000", .txTone = "00", .txCode = "00", .txNac = "0000", .unitId = "00000000"}},
    {"an empty row over an empty default row", Kdrv716, 5, EmptyCells, {{MODE, ""}, {RSQL, ""}, {TSQL, ""}},
     {.address = "0000", .primary = "00", .number = "00", .zone = "00", .description = "2020202020202020",
      .mode = "20", .rxFrequency = "3030302E30303030", .rxSquelch = "20", .rxGroup = "0000", .rxTone = "00",
      .rxCode = "FF", .rxNac = "0000", .txFrequency = "3030302E30303030", .txSquelch = "20",
      .txGroup = "0000", .txTone = "00", .txCode = "00", .txNac = "0000", .unitId = "00000000"}},
    {"texts where numbers should be", Kdrv716, 5, {{MFLG, "xyz"}, {MNUM, "abc"}, {PRIM, "-"},
      {DESC, L"A\u00C9B\tC"}, {MODE, L"\u00C9"}, {RFRQ, "n/a"}, {RSQL, "\t"}, {RTGP, "wxyz"}, {RNAC, "zz"},
      {TFRQ, "1234.5"}, {TTGP, "-"}, {TNAC, "OFF"}, {TIDC, "me"}}, {},
     {.address = "0000", .primary = "00", .number = "00", .description = "4120422043202020", .mode = "20",
      .rxFrequency = "3030302E30303030", .rxSquelch = "20", .rxGroup = "0000", .rxNac = "0000",
      .txFrequency = "3030302E30303030", .txGroup = "0000", .txNac = "0000", .unitId = "00000000"}},
    {"blanks around and short frequencies", Kdrv716, 5, {{DESC, "  A B "}, {RFRQ, " 155 "},
      {TFRQ, " 30.25"}}, {},
     {.description = "4120422020202020", .rxFrequency = "3135352E30303030",
      .txFrequency = "3033302E32353030"}},
    {"a shadow", Kdrv716, 17, {{MFLG, "03"}, {MNUM, "017"}, {PRIM, "005"}, {SHAD, "S-005"}, {ZONE, ""},
      {DESC, "SHADOW 3"}, {MODE, "D"}, {RSQL, "m"}, {TSQL, "g"}}, {},
     {.address = "0011", .flags = "03", .number = "11", .zone = "00", .description = "534841444F572033",
      .mode = "44", .rxSquelch = "6D", .txSquelch = "67"}},
    {"a primary keeps its shadows for itself", Kdrv716, 5, {{MFLG, "1F8"}, {SHAD, "P-7"}, {SHD0, "11"},
      {SHD1, "22"}, {SHD2, "33"}, {SHD3, "44"}, {SHD4, "55"}, {SHD5, "66"}, {SHD6, "77"}}, {},
     {.flags = "78", .flagsHigh = "01"}},
    {"first guard of the first generation", Kdrv716, 231, {{MFLG, "00"}, {MNUM, "231"}, {PRIM, "231"},
      {ZONE, "16"}, {DESC, "GUARD 1"}}, {},
     {.address = "00E7", .flags = "80", .primary = "E7", .number = "E7", .zone = "F0",
      .description = "4755415244203120"}},
    {"second guard of the first generation", Kdrv716, 232, {{MFLG, "1E5"}, {MNUM, "232"}, {PRIM, "009"},
      {ZONE, "2"}, {TCOD, "025"}}, {},
     {.address = "00E8", .flags = "E5", .primary = "09", .number = "E8", .zone = "10", .txCode = "02",
      .flagsHigh = "01"}},
    {"default row of the first generation", Kdrv716, 0, DefaultCells, {},
     {.address = "0000", .primary = "00", .number = "00", .zone = "00", .description = "5648462020313336",
      .rxFrequency = "3133362E30303030", .rxSquelch = "78", .rxGroup = "0001", .rxTone = "01",
      .rxCode = "00", .txFrequency = "3137342E30303030", .txSquelch = "78", .txGroup = "0001",
      .txNac = "0293", .unitId = "00000001"}},
    {"squelch value and zone A of the second generation", Kdrv716B, 5, {{ZONE, "A"}, {RNSV, "15"}}, {},
     {.zone = "00", .squelch = "0F"}},
    {"last common row of the second generation", Kdrv716B, 230, {{MNUM, "230"}, {PRIM, "230"}, {ZONE, "X"},
      {RNSV, "0"}}, {},
     {.address = "00E6", .primary = "E6", .number = "E6", .zone = "F0", .squelch = "00"}},
    {"first guard of the second generation", Kdrv716B, 501, {{MNUM, "501"}, {PRIM, "501"}, {ZONE, "X"},
      {RNSV, "10"}}, {},
     {.address = "00E7", .flags = "80", .primary = "E7", .number = "E7", .zone = "F0"}},
    {"second guard of the second generation", Kdrv716B, 502, {{MFLG, "27F"}, {MNUM, "502"}, {PRIM, "003"},
      {ZONE, ""}, {RNSV, ""}}, {},
     {.address = "00E8", .flags = "FF", .primary = "F5", .number = "E8", .zone = "F0", .squelch = "00",
      .flagsHigh = "02"}},
};

const DecodeCase<V1Line> FromRadio[] = {
    {"a usual memory", Kdrv716,
     {},
     5, {}, {}, PlainRow},
    {"everything at its lowest", Kdrv716,
     {.address = "0001", .primary = "00", .number = "00", .zone = "00", .description = "2020202020202020",
      .mode = "77", .rxFrequency = "3133362E30303030", .rxSquelch = "78", .rxGroup = "0000", .rxTone = "01",
      .rxCode = "00", .rxNac = "0000", .txFrequency = "3133362E30303030", .txSquelch = "2D",
      .txGroup = "0000", .txCode = "00", .txNac = "0000", .unitId = "00000000", .squelch = "00"},
     1, {{MNUM, "001"}, {PRIM, "000"}, {ZONE, "1"}, {DESC, ""}, {MODE, "w"}, {RFRQ, "136.0000"},
      {RSQL, "x"}, {RNSV, " 0"}, {RTON, "67.0"}, {RCOD, "023"}, {RTGP, "0000"}, {RNAC, "000"},
      {TFRQ, "136.0000"}, {TSQL, "-"}, {TTON, "67.0"}, {TCOD, "023"}, {TTGP, "0000"}, {TNAC, "000"},
      {TIDC, "0"}}, {}, PlainRow},
    {"everything at its highest", Kdrv716,
     {.address = "00E8", .flags = "FF", .primary = "FF", .number = "FF", .zone = "FF",
      .description = "7E7E7E7E7E7E7E7E", .mode = "44", .rxFrequency = "3939392E39393939", .rxSquelch = "67",
      .rxGroup = "FFFF", .rxTone = "2A", .rxCode = "52", .rxNac = "FFFF", .txFrequency = "3939392E39393939",
      .txSquelch = "69", .txGroup = "FFFF", .txTone = "2A", .txCode = "52", .txNac = "FFFF",
      .unitId = "FFFFFFFF", .shadows = "FFFFFFFFFFFFFF", .squelch = "FF", .reserved1 = "FFFF",
      .flagsHigh = "FF", .reserved2 = "FFFFFF"},
     232, {{MFLG, "37F"}, {MNUM, "232"}, {PRIM, "255"}, {SHAD, "S-255"}, {ZONE, ""}, {DESC, "~~~~~~~~"},
      {MODE, "D"}, {RFRQ, "999.9999"}, {RSQL, "g"}, {RNSV, "15"}, {RTON, "254.8"}, {RCOD, "754"},
      {RTGP, "FFFF"}, {RNAC, "FFFF"}, {TFRQ, "999.9999"}, {TSQL, "i"}, {TTON, "254.8"}, {TCOD, "754"},
      {TTGP, "FFFF"}, {TNAC, "FFFF"}, {TIDC, "4294967295"}, {SHD0, "255"}, {SHD1, "255"}, {SHD2, "255"},
      {SHD3, "255"}, {SHD4, "255"}, {SHD5, "255"}, {SHD6, "255"}}, {}, ShadowRow},
    {"tone 0 and code FF", Kdrv716,
     {.rxTone = "00", .rxCode = "FF", .txTone = "00", .txCode = "FF"},
     5, {{RTON, "67.0"}, {RCOD, "023"}, {TTON, "67.0"}, {TCOD, "023"}}, {RTON, RCOD, TTON, TCOD}, PlainRow},
    {"tone and code right after their lists", Kdrv716,
     {.rxTone = "2B", .rxCode = "53", .txTone = "FF", .txCode = "54"},
     5, {{RTON, "67.0"}, {RCOD, "023"}, {TTON, "67.0"}, {TCOD, "023"}}, {RTON, RCOD, TTON, TCOD}, PlainRow},
    {"a transmit tone alone that the list lacks", Kdrv716,
     {.txTone = "2B"},
     5, {{TTON, "67.0"}}, {TTON}, PlainRow},
    {"a primary with three shadows", Kdrv716,
     {.address = "0011", .flags = "18", .primary = "11", .number = "11", .shadows = "12001400000100"},
     17, {{MFLG, "18"}, {MNUM, "017"}, {PRIM, "017"}, {SHAD, "P-3"}, {SHD0, "18"}, {SHD2, "20"},
      {SHD5, "1"}}, {}, PrimaryRow},
    {"a primary whose shadows are gone", Kdrv716,
     {.flags = "10"},
     5, {{MFLG, "10"}, {SHAD, "P-0"}}, {}, PrimaryRow},
    {"primary and shadow at once", Kdrv716,
     {.flags = "12", .primary = "04", .shadows = "00000000000007"},
     5, {{MFLG, "12"}, {PRIM, "004"}, {SHAD, "S-004"}, {ZONE, ""}, {SHD6, "7"}}, {}, ShadowRow},
    {"a memory in the scan", Kdrv716,
     {.flags = "88"},
     5, {{MFLG, "08"}, {SCAN, "Y"}}, {}, PlainRow},
    {"the bits that have a meaning only for the radio", Kdrv716,
     {.flags = "60", .flagsHigh = "02"},
     5, {{MFLG, "260"}}, {}, PlainRow},
    {"a blank before the description, small letters and one digit of squelch", Kdrv716,
     {.number = "99", .description = "2061622020632020", .separator = "00", .rxTag = "00", .txTag = "00",
      .squelch = "F5"},
     5, {{DESC, "ab  c"}, {RNSV, " 5"}}, {}, PlainRow},
    {"characters that no cell shows", Kdrv716,
     {.description = "4100420A43FF7F44", .mode = "00", .rxFrequency = "0000000000000000",
      .rxSquelch = "80", .txSquelch = "1F"},
     5, {{DESC, "A B C  D"}, {MODE, " "}, {RSQL, " "}, {TSQL, " "}, {RFRQ, "        "}}, {}, PlainRow},
    {"memory 231 of the first generation", Kdrv716,
     {.address = "00E7", .primary = "E7", .number = "E7"},
     231, {{MNUM, "231"}, {PRIM, "231"}, {ZONE, "16"}}, {}, PlainRow},
    {"the default row", Kdrv716,
     {.address = "0000"},
     0, {{MNUM, "000"}, {BAND, "FM 136-174"}, {TFLG, "C0"}}, {}, PlainRow},
    {"memory 230 of the second generation", Kdrv716B,
     {.address = "00E6", .primary = "E6", .zone = "F0"},
     230, {{MNUM, "230"}, {PRIM, "230"}, {ZONE, "16"}}, {}, PlainRow},
    {"memory 231 of the second generation", Kdrv716B,
     {.address = "00E7", .flags = "80", .primary = "E7", .number = "E7", .zone = "F0"},
     501, {{MNUM, "501"}, {PRIM, "501"}, {ZONE, "X"}}, {}, PlainRow},
    {"memory 232 of the second generation is a shadow", Kdrv716B,
     {.address = "00E8", .flags = "81", .zone = "F0"},
     502, {{MFLG, "01"}, {MNUM, "502"}, {PRIM, "275"}, {SHAD, "S-275"}, {ZONE, ""}}, {}, ShadowRow},
    {"a page of the module", K7,
     {},
     5, {{ZONE, ""}, {TFLG, "C0"}}, {}, PlainRow},
};
// clang-format on

} // namespace

TEST_F(TRecordV1, LineToTheRadioHoldsTheRow) {
    CheckLinesToRadio(ToRadio, encodeTrecordV1);
}

TEST_F(TRecordV1, LineFromTheRadioMakesTheRow) {
    CheckLinesFromRadio(FromRadio, Received, decodeTrecordV1);
}

TEST_F(TRecordV1, CarriesTheRowsThatTheRadioHasAPlaceFor) {
    struct {
        Page page;
        int row;
        bool carried;
    } const cases[] = {
        {Kdrv716, 0, true},     {Kdrv716, 1, true},     {Kdrv716, 230, true},   {Kdrv716, 231, true},
        {Kdrv716, 232, true},   {Kdrv716, 233, false},  {Kdrv716, 501, false},  {Kdrv716B, 0, true},
        {Kdrv716B, 1, true},    {Kdrv716B, 230, true},  {Kdrv716B, 231, false}, {Kdrv716B, 232, false},
        {Kdrv716B, 233, false}, {Kdrv716B, 500, false}, {Kdrv716B, 501, true},  {Kdrv716B, 502, true},
        {K6, 5, false},         {K7, 5, false},         {Krv47, 5, false},      {Orv12, 5, false},
        {Kdar2000, 5, false},   {Krv620AM, 5, false},   {Fxam, 5, false},
    };
    for (const auto& c : cases) {
        OpenFor(c.page, 1);
        EXPECT_EQ(Line(c.row).length(), c.carried ? 136u : 0u) << "page " << c.page << " row " << c.row;
    }
}

TEST_F(TRecordV1, MarksTheLastTwoRowsOfThePage) {
    struct {
        Page page;
        int row;
        const char* flags;
    } const cases[] = {
        {Kdrv716, 229, "55"},  {Kdrv716, 230, "55"},  {Kdrv716, 231, "D5"},  {Kdrv716, 232, "D5"},
        {Kdrv716B, 230, "55"}, {Kdrv716B, 501, "D5"}, {Kdrv716B, 502, "D5"},
    };
    for (const auto& c : cases) {
        OpenFor(c.page, c.row);
        Fill(c.row, Sample, {{MFLG, "55"}});
        EXPECT_EQ(Line(c.row).substr(8, 2), c.flags) << "page " << c.page << " row " << c.row;
    }
}

TEST_F(TRecordV1, ForARowBehindTheGridIsRefusedAndChangesNothing) {
    struct {
        Page page;
        const char* address;
    } const cases[] = {
        {Kdrv716, "00E9"},  {Kdrv716, "01F5"},  {Kdrv716, "FFFF"},
        {Kdrv716B, "00E9"}, {Kdrv716B, "01F5"}, {Kdrv716B, "FFFF"},
    };
    for (const auto& c : cases) {
        OpenFor(c.page, 1);
        V1Line line;
        line.address = c.address;
        const wxArrayString before = AllCells();
        EXPECT_EQ(decodeTrecordV1(CurrentGrid(), line.Text()), 0) << "page " << c.page << " " << c.address;
        EXPECT_TRUE(AllCells() == before) << "page " << c.page << " " << c.address;
    }
}

TEST_F(TRecordV1, CutShortCountsItsMissingDigitsAsZero) {
    Open(Kdrv716);
    Blank(5);
    ASSERT_EQ(decodeTrecordV1(CurrentGrid(), "T1430005"), 1);
    EXPECT_EQ(RowText(5), ExpectedText(Received,
                                       {{PRIM, "000"},
                                        {ZONE, "1"},
                                        {DESC, ""},
                                        {MODE, " "},
                                        {RFRQ, "        "},
                                        {RSQL, " "},
                                        {RNSV, " 0"},
                                        {RTON, "67.0"},
                                        {RCOD, "023"},
                                        {RTGP, "0000"},
                                        {RNAC, "000"},
                                        {TFRQ, "        "},
                                        {TSQL, " "},
                                        {TTON, "67.0"},
                                        {TCOD, "023"},
                                        {TTGP, "0000"},
                                        {TNAC, "000"},
                                        {TIDC, "0"}},
                                       {RTON, TTON}, PlainRow));
    for (const char* line : {"", "T", "T143", "T14300"})
        EXPECT_EQ(decodeTrecordV1(CurrentGrid(), line), 1) << line;
}

TEST_F(TRecordV1, WithOtherCharactersThanDigitsCountsThemAsZero) {
    Open(Kdrv716);
    Blank(5);
    V1Line line;
    line.address = "zz05";
    line.rxGroup = "0Ag\xB0";
    line.unitId = "-0012D68";
    ASSERT_EQ(decodeTrecordV1(CurrentGrid(), wxString::From8BitData(line.Text().c_str())), 1);
    EXPECT_EQ(RowText(5), ExpectedText(Received, {{RTGP, "0A00"}, {TIDC, "77160"}}, {}, PlainRow));
}
