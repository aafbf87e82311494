#include "tests/transfer/TRecordPage.h"
#include "transfer/TRecordCodec.h"

using namespace trecordtest;

namespace {

class TRecordV2 : public TRecordPage {
protected:
    static std::string Line(int row) {
        wxString out = "former";
        encodeTrecordV2(CurrentGrid(), row, out);
        return out.utf8_string();
    }
};

/// The usual memory below, as read from the radio.
const Cells Received = {
    {MFLG, "00"},     {MNUM, "5"},    {PRIM, "5"},         {SHAD, "N"},         {SCAN, "N"}, {ZONE, "3"},
    {DESC, "HILL 4"}, {MODE, "n"},    {RFRQ, "154.12500"}, {RSQL, "t"},         {RNSV, "3"}, {RTON, "100.0"},
    {RCOD, "026"},    {RTGP, "0A1B"}, {RNAC, "293"},       {TFRQ, "159.00000"}, {TSQL, "c"}, {TTON, "67.0"},
    {TCOD, "025"},    {TTGP, "FFFE"}, {TNAC, "F7E"},       {TIDC, "1234567"},   {SHD0, "0"}, {SHD1, "0"},
    {SHD2, "0"},      {SHD3, "0"},    {SHD4, "0"},         {SHD5, "0"},         {SHD6, "0"}, {TFLG, "C8"},
};

// clang-format off
const EncodeCase<V2Line> ToRadio[] = {
    {"a usual memory", Kdrv716B, 5, {}, {}, {}},
    {"everything at its lowest", Kdrv716B, 1, {{MFLG, "00"}, {MNUM, "001"}, {PRIM, "000"}, {ZONE, "1"},
      {DESC, ""}, {MODE, "w"}, {RFRQ, "136.0000"}, {RSQL, "x"}, {RNSV, "0"}, {RTGP, "0000"},
      {RTON, "67.0"}, {RCOD, "023"}, {RNAC, "000"}, {TFRQ, "136.0000"}, {TSQL, "-"}, {TTGP, "0000"},
      {TTON, "67.0"}, {TCOD, "023"}, {TNAC, "000"}, {TIDC, "0"}}, {},
     {.address = "0001", .primary = "0000", .number = "0001", .zone = "0000",
      .description = "2020202020202020", .mode = "77", .rxFrequency = "081B3200", .rxSquelch = "78",
      .rxTone = "01", .rxCode = "01", .rxSquelchNac = "0000", .rxGroup = "0000", .txFrequency = "081B3200",
      .txSquelch = "2D", .txNac = "0000", .txGroup = "0000", .unitId = "00000000"}},
    {"everything at its highest", Kdrv716B, 502, {{MFLG, "FFFF"}, {MNUM, "502"}, {PRIM, "502"},
      {ZONE, "X"}, {DESC, "ZZZZZZZZ"}, {MODE, "D"}, {RFRQ, "173.9975"}, {RSQL, "g"}, {RNSV, "15"},
      {RTGP, "FFFF"}, {RTON, "254.8"}, {RCOD, "754"}, {RNAC, "FFF"}, {TFRQ, "174.0000"}, {TSQL, "i"},
      {TTGP, "FFFF"}, {TTON, "254.8"}, {TCOD, "754"}, {TNAC, "FFF"}, {TIDC, "9999999"}}, {},
     {.address = "01F6", .flags = "FFFF", .primary = "01F6", .number = "01F6", .zone = "01F0",
      .description = "5A5A5A5A5A5A5A5A", .mode = "44", .rxFrequency = "0A5EFDBC", .rxSquelch = "67",
      .rxTone = "2A", .rxCode = "53", .rxSquelchNac = "FFFF", .rxGroup = "FFFF", .txFrequency = "0A5F0780",
      .txSquelch = "69", .txTone = "2A", .txCode = "53", .txNac = "0FFF", .txGroup = "FFFF",
      .unitId = "0098967F"}},
    {"OFF codes and unknown zone and tones", Kdrv716B, 5, {{ZONE, "B"}, {RTON, "OFF"}, {RCOD, "OFF"},
      {TTON, "12.3"}, {TCOD, "OFF"}}, {},
     {.zone = "0000", .rxTone = "00", .rxCode = "00", .txTone = "00", .txCode = "00"}},
    {"codes that no list has", Kdrv716B, 5, {{ZONE, "A"}, {RCOD, "999"}, {TCOD, ""}}, {},
     {.zone = "0100", .rxCode = "00", .txCode = "00"}},
    {"values wider than their fields", Kdrv716B, 5, {{MFLG, "1025A"}, {MNUM, "65541"}, {PRIM, "-1"},
      {DESC, "ABCDEFGHIJ"}, {RFRQ, "154.1234567"}, {RNSV, "17"}, {RTGP, "12345"}, {RNAC, "F293"},
      {TFRQ, "159.00125"}, {TTGP, "ABCDE"}, {TNAC, "F293"}, {TIDC, "-1"}}, {},
     {.flags = "025A", .primary = "FFFF", .description = "4142434445464748", .rxFrequency = "5BDD5F87",
      .rxSquelchNac = "F293", .rxGroup = "2345", .txFrequency = "097A2AA2", .txNac = "F293",
      .txGroup = "BCDE", .unitId = "FFFFFFFF"}},
    {"an empty row takes letters of the default row", Kdrv716B, 5, EmptyCells, {},
     {.primary = "0000", .number = "0000", .zone = "0000", .description = "2020202020202020",
      .rxFrequency = "00000000", .rxSquelch = "78", .rxTone = "00", .rxCode = "00", .rxSquelchNac = "0000",
      .rxGroup = "0000", .txFrequency = "00000000", .txSquelch = "78", .txTone = "00", .txCode = "00",
      .txNac = "0000", .txGroup = "0000", .unitId = "00000000"}},
    {"an empty row over an empty default row", Kdrv716B, 5, EmptyCells, {{MODE, ""}, {RSQL, ""},
      {TSQL, ""}},
     {.primary = "0000", .number = "0000", .zone = "0000", .description = "2020202020202020", .mode = "20",
      .rxFrequency = "00000000", .rxSquelch = "20", .rxTone = "00", .rxCode = "00", .rxSquelchNac = "0000",
      .rxGroup = "0000", .txFrequency = "00000000", .txSquelch = "20", .txTone = "00", .txCode = "00",
      .txNac = "0000", .txGroup = "0000", .unitId = "00000000"}},
    {"texts where numbers should be", Kdrv716B, 5, {{MFLG, "xyz"}, {MNUM, "abc"}, {PRIM, "-"},
      {DESC, L"A\u00C9B\tC"}, {RFRQ, "n/a"}, {RNSV, "?"}, {RTGP, "wxyz"}, {RNAC, "zz"}, {TFRQ, "."},
      {TTGP, "-"}, {TNAC, "OFF"}, {TIDC, "me"}}, {},
     {.primary = "0000", .number = "0000", .description = "4120422043202020", .rxFrequency = "00000000",
      .rxSquelchNac = "0000", .rxGroup = "0000", .txFrequency = "00000000", .txNac = "0000",
      .txGroup = "0000", .unitId = "00000000"}},
    {"blanks around, few decimals and no point", Kdrv716B, 5, {{DESC, "  A B "}, {RFRQ, " 155 "},
      {TFRQ, " 30.25"}}, {},
     {.description = "4120422020202020", .rxFrequency = "0000009B", .txFrequency = "01CD9410"}},
    {"a point at the end and one decimal more", Kdrv716B, 5, {{RFRQ, "155."}, {TFRQ, "154.12345"}}, {},
     {.rxFrequency = "093D1CC0", .txFrequency = "092FBCBA"}},
    {"the highest NAC bits join the squelch value", Kdrv716B, 5, {{RNSV, "8"}, {RNAC, "1FFF"}}, {},
     {.rxSquelchNac = "9FFF"}},
    {"a shadow", Kdrv716B, 400, {{MFLG, "07"}, {MNUM, "400"}, {PRIM, "300"}, {SHAD, "S-300"}, {ZONE, ""},
      {DESC, "SHADOW 7"}, {MODE, "D"}, {RSQL, "m"}, {TSQL, "g"}}, {},
     {.address = "0190", .flags = "0007", .primary = "012C", .number = "0190", .zone = "0000",
      .description = "534841444F572037", .mode = "44", .rxSquelch = "6D", .txSquelch = "67"}},
    {"a primary keeps its shadows for itself", Kdrv716B, 5, {{MFLG, "3F8"}, {SHAD, "P-7"}, {SHD0, "11"},
      {SHD1, "22"}, {SHD2, "33"}, {SHD3, "44"}, {SHD4, "55"}, {SHD5, "66"}, {SHD6, "77"}}, {},
     {.flags = "03F8"}},
    {"row 231 is a row like others", Kdrv716B, 231, {{MNUM, "231"}, {PRIM, "231"}}, {},
     {.address = "00E7", .primary = "00E7", .number = "00E7"}},
    {"row 500", Kdrv716B, 500, {{MNUM, "500"}, {PRIM, "499"}}, {},
     {.address = "01F4", .primary = "01F3", .number = "01F4"}},
    {"a guard has no mark and its own number", Kdrv716B, 501, {{MFLG, "80"}, {MNUM, "501"}, {PRIM, "501"},
      {ZONE, "X"}}, {},
     {.address = "01F5", .flags = "0080", .primary = "01F5", .number = "01F5", .zone = "01F0"}},
    {"the number may differ from the row", Kdrv716B, 7, {{MNUM, "499"}, {PRIM, "12"}}, {},
     {.address = "0007", .primary = "000C", .number = "01F3"}},
    {"a guard of the first generation, without squelch value", Kdrv716, 232, {{MNUM, "232"}, {PRIM, "232"},
      {ZONE, "16"}, {RNSV, ""}}, {},
     {.address = "00E8", .primary = "00E8", .number = "00E8", .zone = "00F0", .rxSquelchNac = "0293"}},
    {"codes of a page of the module", K7, 5, {{MODE, "N"}, {RSQL, ""}, {RNSV, ""}, {RTON, "OFF"},
      {RCOD, "OFF"}, {RNAC, ""}, {RTGP, ""}, {TSQL, ""}, {TCOD, "754"}, {TNAC, ""}, {TTGP, ""}, {TIDC, ""},
      {ZONE, ""}}, {},
     {.zone = "0000", .mode = "4E", .rxSquelch = "20", .rxTone = "00", .rxCode = "01",
      .rxSquelchNac = "0000", .rxGroup = "0000", .txSquelch = "20", .txCode = "54", .txNac = "0000",
      .txGroup = "0000", .unitId = "00000000"}},
    {"page of another type: Krv47", Krv47, 5, {}, {},
     {.rxCode = "03", .txCode = "02"}},
    {"page of another type: Orv12", Orv12, 5, {}, {},
     {.rxCode = "03", .txCode = "02"}},
    {"page of another type: Kdar2000", Kdar2000, 5, {}, {},
     {.rxCode = "03", .txCode = "02"}},
    {"page of another type: Krv620AM", Krv620AM, 5, {}, {},
     {.rxCode = "03", .txCode = "02"}},
    {"page of another type: Fxam", Fxam, 5, {}, {},
     {.rxCode = "03", .txCode = "02"}},
    {"page of another type: K6", K6, 5, {}, {},
     {.rxCode = "03", .txCode = "02"}},
};

const DecodeCase<V2Line> FromRadio[] = {
    {"a usual memory", Kdrv716B,
     {},
     5, {}, {}, PlainRow},
    {"everything at its lowest", Kdrv716B,
     {.address = "0001", .primary = "0000", .number = "0000", .zone = "0000",
      .description = "2020202020202020", .mode = "77", .rxFrequency = "00000000", .rxSquelch = "78",
      .rxTone = "01", .rxCode = "00", .rxSquelchNac = "0000", .rxGroup = "0000", .txFrequency = "00000001",
      .txSquelch = "2D", .txCode = "00", .txNac = "0000", .txGroup = "0000", .unitId = "00000000"},
     1, {{MNUM, "0"}, {PRIM, "0"}, {ZONE, "1"}, {DESC, ""}, {MODE, "w"}, {RFRQ, "0.000000"}, {RSQL, "x"},
      {RNSV, "0"}, {RTON, "67.0"}, {RCOD, "023"}, {RTGP, "0000"}, {RNAC, "000"}, {TFRQ, "0.000001"},
      {TSQL, "-"}, {TTON, "67.0"}, {TCOD, "023"}, {TTGP, "0000"}, {TNAC, "000"}, {TIDC, "0000000"}},
      {}, PlainRow},
    {"everything at its highest", Kdrv716B,
     {.address = "01F6", .flags = "FFFF", .primary = "FFFF", .number = "FFFF", .zone = "FFFF",
      .description = "7E7E7E7E7E7E7E7E", .mode = "44", .rxFrequency = "FFFFFFFF", .rxSquelch = "67",
      .rxTone = "2A", .rxCode = "52", .rxSquelchNac = "FFFF", .rxGroup = "FFFF", .txFrequency = "FFFFFFFF",
      .txSquelch = "69", .txTone = "2A", .txCode = "52", .txNac = "FFFF", .txGroup = "FFFF",
      .unitId = "FFFFFFFF", .shadows = "FFFFFFFFFFFFFFFFFFFFFFFFFFFF", .reserved1 = "FFFF",
      .reserved2 = "FFFF"},
     502, {{MFLG, "FFFF"}, {MNUM, "65535"}, {PRIM, "65535"}, {SHAD, "S-65535"}, {ZONE, ""},
      {DESC, "~~~~~~~~"}, {MODE, "D"}, {RFRQ, "4294.9672"}, {RSQL, "g"}, {RNSV, "15"}, {RTON, "254.8"},
      {RCOD, "754"}, {RTGP, "FFFF"}, {RNAC, "FFF"}, {TFRQ, "4294.9672"}, {TSQL, "i"}, {TTON, "254.8"},
      {TCOD, "754"}, {TTGP, "FFFF"}, {TNAC, "FFFF"}, {TIDC, "4294967295"}, {SHD0, "65535"},
      {SHD1, "65535"}, {SHD2, "65535"}, {SHD3, "65535"}, {SHD4, "65535"}, {SHD5, "65535"},
      {SHD6, "65535"}}, {}, ShadowRow},
    {"tone 0 and code FF", Kdrv716B,
     {.rxTone = "00", .rxCode = "FF", .txTone = "00", .txCode = "FF"},
     5, {{RTON, "67.0"}, {RCOD, "023"}, {TTON, "67.0"}, {TCOD, "023"}}, {RTON, RCOD, TTON, TCOD}, PlainRow},
    {"tone and code right after their lists", Kdrv716B,
     {.rxTone = "2B", .rxCode = "53", .txTone = "FF", .txCode = "54"},
     5, {{RTON, "67.0"}, {RCOD, "023"}, {TTON, "67.0"}, {TCOD, "023"}}, {RTON, RCOD, TTON, TCOD}, PlainRow},
    {"a receive code alone that the list lacks", Kdrv716B,
     {.rxCode = "53"},
     5, {{RCOD, "023"}}, {RCOD}, PlainRow},
    {"a primary with three shadows", Kdrv716B,
     {.address = "012C", .flags = "0018", .primary = "012C", .number = "012C",
      .shadows = "012D000001F40000000000000001"},
     300, {{MFLG, "18"}, {MNUM, "300"}, {PRIM, "300"}, {SHAD, "P-3"}, {SHD0, "301"}, {SHD2, "500"},
      {SHD6, "1"}}, {}, PrimaryRow},
    {"primary and shadow at once", Kdrv716B,
     {.flags = "0014", .primary = "0004", .shadows = "0000000000000000000000000007"},
     5, {{MFLG, "14"}, {PRIM, "4"}, {SHAD, "S-004"}, {ZONE, ""}, {SHD6, "7"}}, {}, ShadowRow},
    {"a memory in the scan", Kdrv716B,
     {.flags = "0088"},
     5, {{MFLG, "88"}, {SCAN, "Y"}}, {}, PlainRow},
    {"high flags", Kdrv716B,
     {.flags = "8160"},
     5, {{MFLG, "8160"}}, {}, PlainRow},
    {"zone X", Kdrv716B,
     {.zone = "01F0"},
     5, {{ZONE, "X"}}, {}, PlainRow},
    {"zone A, low digit of the zone", Kdrv716B,
     {.zone = "010F"},
     5, {{ZONE, "A"}}, {}, PlainRow},
    {"a zone that the list does not hold", Kdrv716B,
     {.zone = "0200"},
     5, {{ZONE, "1"}}, {}, PlainRow},
    {"a zone that the first generation does not hold", Kdrv716,
     {.zone = "0100"},
     5, {{ZONE, "1"}}, {}, PlainRow},
    {"the number differs from the row", Kdrv716B,
     {.address = "00E7", .primary = "000C", .number = "01F3"},
     231, {{MNUM, "499"}, {PRIM, "12"}}, {}, PlainRow},
    {"a guard takes the last zone", Kdrv716B,
     {.address = "01F5", .primary = "01F5", .number = "01F5", .zone = "0000"},
     501, {{MNUM, "501"}, {PRIM, "501"}, {ZONE, "X"}}, {}, PlainRow},
    {"short and long frequencies", Kdrv716B,
     {.rxFrequency = "01CD9410", .txFrequency = "092FBCBA"},
     5, {{RFRQ, "30.250000"}, {TFRQ, "154.12345"}}, {}, PlainRow},
    {"characters that no cell shows", Kdrv716B,
     {.description = "4100420A43FF7F44", .separator = "00", .mode = "00", .rxTag = "00", .rxSquelch = "80",
      .txTag = "00", .txSquelch = "1F"},
     5, {{DESC, "A B C  D"}, {MODE, " "}, {RSQL, " "}, {TSQL, " "}}, {}, PlainRow},
    {"NAC with leading zeros, unit id of seven digits", Kdrv716B,
     {.rxSquelchNac = "A00F", .txNac = "0001", .unitId = "00000001"},
     5, {{RNSV, "10"}, {RNAC, "00F"}, {TNAC, "001"}, {TIDC, "0000001"}}, {}, PlainRow},
    {"the default row", Kdrv716B,
     {.address = "0000", .number = "0000"},
     0, {{MNUM, "0"}, {BAND, "FM 136-174"}, {TFLG, "C0"}}, {}, PlainRow},
    {"a shadow on a page of the module", K7,
     {.flags = "0001"},
     5, {{MFLG, "01"}, {SHAD, "S-005"}, {ZONE, ""}, {TFLG, "C0"}}, {}, ShadowRow},
    {"tone 0 on a page of the module", K7,
     {.rxTone = "00"},
     5, {{RTON, "OFF"}, {ZONE, ""}, {TFLG, "C0"}}, {RTON}, PlainRow},
};
// clang-format on

} // namespace

TEST_F(TRecordV2, LineToTheRadioHoldsTheRow) {
    CheckLinesToRadio(ToRadio, encodeTrecordV2);
}

TEST_F(TRecordV2, LineFromTheRadioMakesTheRow) {
    CheckLinesFromRadio(FromRadio, Received, decodeTrecordV2);
}

TEST_F(TRecordV2, MarksNoRowOfThePage) {
    struct {
        Page page;
        int row;
        const char* address;
    } const cases[] = {
        {Kdrv716, 231, "00E7"},  {Kdrv716, 232, "00E8"},  {Kdrv716B, 230, "00E6"}, {Kdrv716B, 231, "00E7"},
        {Kdrv716B, 500, "01F4"}, {Kdrv716B, 501, "01F5"}, {Kdrv716B, 502, "01F6"}, {K7, 500, "01F4"},
    };
    for (const auto& c : cases) {
        OpenFor(c.page, c.row);
        Fill(c.row, Sample, {});
        EXPECT_EQ(Line(c.row).substr(0, 12), std::string("T143") + c.address + "0000")
            << "page " << c.page << " row " << c.row;
    }
}

TEST_F(TRecordV2, ForARowBehindTheGridIsRefusedAndChangesNothing) {
    struct {
        Page page;
        const char* address;
    } const cases[] = {
        {Kdrv716, "00E9"}, {Kdrv716B, "01F7"}, {Kdrv716B, "FFFF"}, {K7, "01F5"}, {Orv12, "0007"},
    };
    for (const auto& c : cases) {
        OpenFor(c.page, 1);
        V2Line line;
        line.address = c.address;
        const wxArrayString before = AllCells();
        EXPECT_EQ(decodeTrecordV2(CurrentGrid(), line.Text()), 0) << "page " << c.page << " " << c.address;
        EXPECT_TRUE(AllCells() == before) << "page " << c.page << " " << c.address;
    }
}

TEST_F(TRecordV2, CutShortCountsItsMissingDigitsAsZero) {
    Open(Kdrv716B);
    Blank(5);
    ASSERT_EQ(decodeTrecordV2(CurrentGrid(), "T1430005"), 1);
    EXPECT_EQ(RowText(5), ExpectedText(Received,
                                       {{MNUM, "0"},
                                        {PRIM, "0"},
                                        {ZONE, "1"},
                                        {DESC, ""},
                                        {MODE, " "},
                                        {RFRQ, "0.000000"},
                                        {RSQL, " "},
                                        {RNSV, "0"},
                                        {RTON, "67.0"},
                                        {RCOD, "023"},
                                        {RTGP, "0000"},
                                        {RNAC, "000"},
                                        {TFRQ, "0.000000"},
                                        {TSQL, " "},
                                        {TTON, "67.0"},
                                        {TCOD, "023"},
                                        {TTGP, "0000"},
                                        {TNAC, "000"},
                                        {TIDC, "0000000"}},
                                       {RTON, TTON}, PlainRow));
    for (const char* line : {"", "T", "T143", "T14300"})
        EXPECT_EQ(decodeTrecordV2(CurrentGrid(), line), 1) << line;
}

TEST_F(TRecordV2, WithOtherCharactersThanDigitsCountsThemAsZero) {
    Open(Kdrv716B);
    Blank(5);
    V2Line line;
    line.address = "zz05";
    line.rxGroup = "0Ag\xB0";
    line.unitId = "-0012D68";
    ASSERT_EQ(decodeTrecordV2(CurrentGrid(), wxString::From8BitData(line.Text().c_str())), 1);
    EXPECT_EQ(RowText(5), ExpectedText(Received, {{RTGP, "0A00"}, {TIDC, "0077160"}}, {}, PlainRow));
}

TEST_F(TRecordV2, TakesItsZoneAsTheRoomInTheZonesAllows) {
    Open(Kdrv716B);
    Blank(5);
    ZoneSlots.fill(0);
    ZoneSlots[2] = 16;
    ASSERT_EQ(decodeTrecordV2(CurrentGrid(), V2Line().Text()), 1);
    EXPECT_EQ(Cell(5, ZONE), "3")
        << "intentional: a row that finds its zone full keeps the zone's text, without a slot";
    ZoneSlots[0] = 16;
    V2Line line;
    line.zone = "0000";
    ASSERT_EQ(decodeTrecordV2(CurrentGrid(), line.Text()), 1);
    EXPECT_EQ(Cell(5, ZONE), "2");
}
