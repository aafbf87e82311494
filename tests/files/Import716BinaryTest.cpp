// The binary memory files of the KDRV-716 family.
#include "tests/files/ImportTest.h"
#include "tests/support/LogKeeper.h"

namespace {

class Binary716 : public ImportTest {
protected:
    void SetUp() override {
        ImportTest::SetUp();
        RetargetTo("RP25");
    }

    static Record716 Decode(const BinaryRecord& record, int type = RadioCatalogue::RP25) {
        Record716 decoded;
        EXPECT_EQ(Read716Record(record.Bytes(), type, decoded), 106u);
        return decoded;
    }
};

struct WordCase {
    size_t offset;
    int word;
    Field716 field;
    const char* text;
};

struct TextCase {
    size_t offset, size;
    Field716 field;
};

} // namespace

TEST_F(Binary716, WordsBecomeTexts) {
    const WordCase cases[] = {
        {2, 0x00, &Record716::Mflg, "00"},   {2, 0x13, &Record716::Mflg, "13"},
        {2, 0x3FF, &Record716::Mflg, "3FF"}, {4, 7, &Record716::Prim, "007"},
        {4, 1234, &Record716::Prim, "1234"}, {6, 42, &Record716::Mnum, "042"},
        {8, 0, &Record716::Zone, "1"},       {8, 15, &Record716::Zone, "1"},
        {8, 16, &Record716::Zone, "2"},      {8, 255, &Record716::Zone, "16"},
        {18, 'N', &Record716::Encr, "N"},    {20, 0, &Record716::Mode, "w"},
        {20, 1, &Record716::Mode, "n"},      {20, 2, &Record716::Mode, "D"},
        {20, 3, &Record716::Mode, ""},       {20, 0xFFFF, &Record716::Mode, ""},
        {22, 'c', &Record716::Rsql, "c"},    {22, 0, &Record716::Rsql, ""},
        {30, 0, &Record716::Rton, "OFF"},    {30, 1, &Record716::Rton, "67.0"},
        {30, 63, &Record716::Rton, "250.3"}, {30, 65, &Record716::Rton, ""},
        {32, 0, &Record716::Rcod, "023"},    {32, 82, &Record716::Rcod, "754"},
        {32, 83, &Record716::Rcod, ""},      {50, '-', &Record716::Tsql, "-"},
        {58, 25, &Record716::Tton, "156.7"}, {58, 0xFFFF, &Record716::Tton, ""},
        {60, 1, &Record716::Tcod, "025"},    {88, 31, &Record716::Shd0, "031"},
        {90, 32, &Record716::Shd1, "032"},   {92, 33, &Record716::Shd2, "033"},
        {94, 34, &Record716::Shd3, "034"},   {96, 35, &Record716::Shd4, "035"},
        {98, 36, &Record716::Shd5, "036"},   {100, 37, &Record716::Shd6, "037"},
        {104, 9, &Record716::Rfrn, "009"},
    };
    for (const WordCase& c : cases)
        EXPECT_EQ(Decode(BinaryRecord().Word(c.offset, c.word)).*c.field, c.text)
            << "word " << c.word << " at " << c.offset;
}

TEST_F(Binary716, EachWordAndTextReachesItsOwnFieldAlone) {
    const Field716 none = nullptr;
    const std::pair<size_t, Field716> fields[] = {
        {0, none},
        {2, &Record716::Mflg},
        {4, &Record716::Prim},
        {6, &Record716::Mnum},
        {8, &Record716::Zone},
        {10, &Record716::Desc},
        {18, &Record716::Encr},
        {20, &Record716::Mode},
        {22, &Record716::Rsql},
        {24, &Record716::Rtgp},
        {30, &Record716::Rton},
        {32, &Record716::Rcod},
        {34, &Record716::Rnac},
        {40, &Record716::Rfrq},
        {50, &Record716::Tsql},
        {52, &Record716::Ttgp},
        {58, &Record716::Tton},
        {60, &Record716::Tcod},
        {62, &Record716::Tnac},
        {68, &Record716::Tfrq},
        {78, &Record716::Tidc},
        {86, none},
        {88, &Record716::Shd0},
        {90, &Record716::Shd1},
        {92, &Record716::Shd2},
        {94, &Record716::Shd3},
        {96, &Record716::Shd4},
        {98, &Record716::Shd5},
        {100, &Record716::Shd6},
        {102, none},
        {104, &Record716::Rfrn},
    };
    const Field716 all[] = {
        &Record716::Mflg, &Record716::Prim, &Record716::Mnum, &Record716::Zone, &Record716::Desc,
        &Record716::Encr, &Record716::Mode, &Record716::Rsql, &Record716::Rtgp, &Record716::Rton,
        &Record716::Rcod, &Record716::Rnac, &Record716::Rfrq, &Record716::Tsql, &Record716::Ttgp,
        &Record716::Tton, &Record716::Tcod, &Record716::Tnac, &Record716::Tfrq, &Record716::Tidc,
        &Record716::Shd0, &Record716::Shd1, &Record716::Shd2, &Record716::Shd3, &Record716::Shd4,
        &Record716::Shd5, &Record716::Shd6, &Record716::Rfrn, &Record716::Tflg,
    };
    const Record716 plain = Decode(BinaryRecord());
    for (size_t i = 0; i < std::size(fields); ++i) {
        const size_t begin = fields[i].first, end = i + 1 < std::size(fields) ? fields[i + 1].first : 106;
        for (size_t at = begin; at < end; at += 2) {
            // This word differs from all words of the plain record, and neither of its two characters is a
            // blank.
            const Record716 changed = Decode(BinaryRecord().Word(at, 0x3837));
            for (const Field716 field : all)
                EXPECT_EQ(plain.*field != changed.*field, field == fields[i].second)
                    << "bytes at " << at << ", field " << (&field - all);
        }
    }
}

TEST_F(Binary716, CodesAreThoseOfThePagesKind) {
    EXPECT_EQ(Decode(BinaryRecord().Word(32, 0), RadioCatalogue::NP25).Rcod, "023");
    EXPECT_EQ(Decode(BinaryRecord().Word(32, 0), RadioCatalogue::ANFM).Rcod, "OFF");
    EXPECT_EQ(Decode(BinaryRecord().Word(60, 1), RadioCatalogue::ANFM).Tcod, "023");
}

TEST_F(Binary716, TextsLoseTheirBlanks) {
    const TextCase cases[] = {
        {24, 6, &Record716::Rtgp}, {34, 6, &Record716::Rnac}, {40, 10, &Record716::Rfrq},
        {52, 6, &Record716::Ttgp}, {62, 6, &Record716::Tnac}, {68, 10, &Record716::Tfrq},
    };
    for (const TextCase& c : cases) {
        SCOPED_TRACE("text at " + std::to_string(c.offset));
        EXPECT_EQ(Decode(BinaryRecord().Text(c.offset, c.size, "A1")).*c.field, "A1");
        EXPECT_EQ(Decode(BinaryRecord().Text(c.offset, c.size, " A1")).*c.field, "A1");
        const std::string full(c.size, '9');
        EXPECT_EQ(Decode(BinaryRecord().Text(c.offset, c.size, full)).*c.field, full);
    }
}

TEST_F(Binary716, ADescriptionKeepsItsBlanksInFront) {
    EXPECT_EQ(Decode(BinaryRecord().Text(10, 8, "  TAC 1")).Desc, "  TAC 1");
    EXPECT_EQ(Decode(BinaryRecord().Text(10, 8, "ABCDEFGH")).Desc, "ABCDEFGH");
}

TEST_F(Binary716, AZeroByteEndsAText) {
    EXPECT_EQ(Decode(BinaryRecord().Text(10, 8, std::string("AB\0CD", 5))).Desc, "AB");
    EXPECT_EQ(Decode(BinaryRecord().Text(40, 10, std::string(10, '\0'))).Rfrq, "");
}

TEST_F(Binary716, DescriptionsAreUtf8OrLatin1) {
    EXPECT_EQ(Decode(BinaryRecord().Text(10, 8, "M\xC3\x9CNCHEN")).Desc,
              wxString::FromUTF8("M\xC3\x9CNCHEN"));
    EXPECT_EQ(Decode(BinaryRecord().Text(10, 8, "M\xDCNCHEN")).Desc, wxString::FromUTF8("M\xC3\x9CNCHEN"));
}

TEST_F(Binary716, ANewlineCutsATextAndShiftsTheRest) {
    // Five bytes of the text and the newline replace its eight bytes.
    const std::string whole = BinaryRecord(5).Bytes();
    const std::string cut = whole.substr(0, 10) + "VCALL\n" + whole.substr(18);
    Record716 record;
    EXPECT_EQ(Read716Record(cut, RadioCatalogue::RP25, record), 104u);
    EXPECT_EQ(record.Desc, "VCALL");
    EXPECT_EQ(record.Encr, "N");
    EXPECT_EQ(record.Mode, "n");
    EXPECT_EQ(record.Tfrq, "155.7525");
    EXPECT_EQ(record.Tidc, "0000001");
    // A newline replaces a blank: the blanks after it become the next words.
    EXPECT_EQ(Read716Record(BinaryRecord().Text(10, 8, "\nABCDEFG").Bytes(), RadioCatalogue::RP25, record),
              99u);
    EXPECT_EQ(record.Desc, "");
    EXPECT_EQ(record.Encr, wxString(wxUniChar('A' | 'B' << 8)));
}

TEST_F(Binary716, ARecordAfterACutTextIsReadFromTheShiftedPlace) {
    const std::string whole = BinaryRecord(5).Bytes();
    const std::string cut = whole.substr(0, 10) + "VCALL\n" + whole.substr(18);
    EXPECT_EQ(Import(BinaryHeader() + cut + BinaryRecord(6).Bytes()), 2);
    EXPECT_EQ(Text(5, DESC), "VCALL");
    EXPECT_EQ(Text(6, DESC), "VCALL10");
}

TEST_F(Binary716, TheUnitIdIsPackedDecimal) {
    const std::tuple<int, int, int, int, const char*> cases[] = {
        {0, 0, 0, 0, "0000000"},
        {0, 0, 0, 0x01, "0000001"},
        {0x12, 0x34, 0x56, 0x78, "12345678"},
        {0x01, 0x23, 0x45, 0x67, "1234567"},
        {0, 0, 0, 0x1F, "0000025"},  // 1 * 10 + 15
        {0, 0, 0, 0x100, "0000160"}, // 16 * 10
        {0x99, 0x99, 0x99, 0x99, "99999999"},
        {0x99, 0x99, 0x99, 0x9A, "0000000"}, // one above the maximum
        {0xFFFF, 0xFFFF, 0xFFFF, 0xFFFF, "0000000"},
    };
    for (const auto& [a, b, c, d, text] : cases)
        EXPECT_EQ(Decode(BinaryRecord().Word(78, a).Word(80, b).Word(82, c).Word(84, d)).Tidc, text) << text;
}

TEST_F(Binary716, TheScanFlagGivesTheScanText) {
    for (int flags : {0x00, 0x10, 0x80, 0xF7})
        EXPECT_EQ(Decode(BinaryRecord().Word(2, flags)).Scan, "N") << flags;
    for (int flags : {0x08, 0x18, 0xFF})
        EXPECT_EQ(Decode(BinaryRecord().Word(2, flags)).Scan, "Y") << flags;
}

TEST_F(Binary716, TheReaderTakesARecordWhateverItsTransferFlags) {
    for (int flags : {0x00, 0x20, 0x7F}) {
        EXPECT_EQ(Decode(BinaryRecord().Word(0, flags)).Tflg, "A0");
        EXPECT_EQ(Import(BinaryHeader() + BinaryRecord().Word(0, flags).Bytes()), 1) << flags;
    }
}

TEST_F(Binary716, ARecordEndsWhereTheFileDoes) {
    const std::string bytes = BinaryRecord(5).Bytes();
    for (size_t length : {0u, 1u}) {
        Record716 record;
        record.Desc = "KEPT";
        EXPECT_EQ(Read716Record(bytes.substr(0, length), RadioCatalogue::RP25, record), 0u);
        EXPECT_EQ(record.Desc, "KEPT");
    }
    Record716 record;
    EXPECT_EQ(Read716Record(bytes.substr(0, 20), RadioCatalogue::RP25, record), 20u);
    EXPECT_EQ(record.Mnum, "005");
    EXPECT_EQ(record.Desc, "VCALL10");
    EXPECT_EQ(record.Mode, "");
    EXPECT_EQ(record.Rfrq, "");
    EXPECT_EQ(record.Shd0, "65535");
    EXPECT_EQ(Read716Record(bytes.substr(0, 2), RadioCatalogue::RP25, record), 2u);
    EXPECT_EQ(record.Mnum, "65535") << "so that a record without a number is for no row";
}

TEST_F(Binary716, EveryFieldReachesItsCell) {
    const BinaryRecord record = BinaryRecord(9)
                                    .Word(2, 0x08)
                                    .Word(8, 32)
                                    .Text(10, 8, "MAIN")
                                    .Word(20, 0)
                                    .Word(22, 'c')
                                    .Text(24, 6, "12AB")
                                    .Word(30, 1)
                                    .Word(32, 3)
                                    .Text(34, 6, "F7E")
                                    .Text(40, 10, "151.1375")
                                    .Word(50, 't')
                                    .Text(52, 6, "FFFF")
                                    .Word(58, 2)
                                    .Word(60, 4)
                                    .Text(62, 6, "68A")
                                    .Text(68, 10, "159.4725")
                                    .Word(78, 0)
                                    .Word(80, 0x12)
                                    .Word(82, 0x34)
                                    .Word(84, 0x56);
    EXPECT_EQ(Import(BinaryFile({record})), 1);
    ExpectCells(9, {{MFLG, "08"},   {MNUM, "009"},      {PRIM, "009"},     {SHAD, "N"},    {BAND, ""},
                    {SCAN, "Y"},    {ZONE, "3"},        {DESC, "MAIN"},    {MODE, "w"},    {RFRQ, "151.1375"},
                    {RSQL, "c"},    {RNSV, ""},         {RTON, "67.0"},    {RCOD, "031"},  {RTGP, "12AB"},
                    {RNAC, "F7E"},  {TFRQ, "159.4725"}, {TSQL, "t"},       {TTON, "71.9"}, {TCOD, "032"},
                    {TTGP, "FFFF"}, {TNAC, "68A"},      {TIDC, "0123456"}, {SHD0, ""},     {RONL, ""},
                    {TFLG, "A8"}});
    for (int col = 0; col < ColumnTotal; ++col)
        EXPECT_FALSE(IsPainted(9, col)) << ColumnTag[col];
    EXPECT_EQ(FilledRows(0), Rows({0, 9}));
}

TEST_F(Binary716, AnEmptySquelchIsFilledByTheCode) {
    EXPECT_EQ(Import(BinaryFile({BinaryRecord(5).Word(22, 0)})), 1);
    EXPECT_EQ(Text(5, RSQL), "c");
}

TEST_F(Binary716, TheRowCheckRepairsWhatCannotStand) {
    EXPECT_EQ(Import(BinaryFile({BinaryRecord(5).Text(40, 10, "90.0000").Word(20, 9).Word(22, '?')})), 1);
    ExpectCells(5, {{RFRQ, "136.0000"}, {MODE, "n"}, {RSQL, "x"}});
    for (int col : {RFRQ, MODE, RSQL})
        EXPECT_TRUE(IsPainted(5, col)) << ColumnTag[col];
    EXPECT_FALSE(IsPainted(5, TFRQ));
}

TEST_F(Binary716, NumbersFrom231OnMoveTo501OnTheLargerRadio) {
    RetargetTo("NP25");
    EXPECT_EQ(
        Import(BinaryFile({BinaryRecord(230), BinaryRecord(231), BinaryRecord(232), BinaryRecord(233)})), 3);
    EXPECT_EQ(FilledRows(0), Rows({0, 230, 501, 502}));
    ExpectCells(501, {{MNUM, "501"}, {PRIM, "501"}, {RNSV, "10"}});
    ExpectCells(502, {{MNUM, "502"}, {PRIM, "502"}});
    ExpectCells(230, {{MNUM, "230"}, {RNSV, "10"}});
}

TEST_F(Binary716, ANumberThatMovesMovesInNumberAndPrimary) {
    RetargetTo("NP25");
    Record716 record = Decode(BinaryRecord(231).Word(4, 5), RadioCatalogue::NP25);
    EXPECT_EQ(RowOf716(record), 501);
    EXPECT_EQ(record.Mnum, "501");
    EXPECT_EQ(record.Prim, "501");
    record = Decode(BinaryRecord(230).Word(4, 5), RadioCatalogue::NP25);
    EXPECT_EQ(RowOf716(record), 230);
    EXPECT_EQ(record.Prim, "005");
}

TEST_F(Binary716, ARecordIsForNoRowWithoutTheDefinedFlag) {
    Record716 record = Decode(BinaryRecord(5));
    for (const auto& [flags, row] : {std::pair("80", 5), std::pair("FF", 5), std::pair("7F", -1),
                                     std::pair("00", -1), std::pair("", -1)}) {
        record.Tflg = flags;
        EXPECT_EQ(RowOf716(record), row) << flags;
    }
}

TEST_F(Binary716, TheWriterChecksZoneTonesAndCodesAndLeavesTheOtherTexts) {
    CurrentGrid()->ClearGrid();
    ClearZoneSlots(CurrentPage);
    Record716 record = Decode(BinaryRecord(5).Word(8, 32));
    record.Desc = "A TEXT THAT IS TOO LONG";
    record.Mode = "W";
    record.Rfrq = "90";
    record.Rton = record.Tcod = "none";
    record.Tidc = "x";
    SetCell(0, RTON, "67.0");
    SetCell(0, TCOD, "023");
    write716ToGrid(CurrentGrid(), 5, record);
    ExpectCells(5, {{ZONE, "3"},
                    {TFLG, "A8"},
                    {DESC, "A TEXT THAT IS TOO LONG"},
                    {MODE, "W"},
                    {RFRQ, "90"},
                    {RTON, "67.0"},
                    {TCOD, "023"},
                    {TIDC, "x"}});
    EXPECT_TRUE(IsPainted(5, RTON));
    EXPECT_TRUE(IsPainted(5, TCOD));
    EXPECT_FALSE(IsPainted(5, RFRQ));
}

TEST_F(Binary716, OnTheSmallerRadioNumbersStay) {
    EXPECT_EQ(Import(BinaryFile({BinaryRecord(231), BinaryRecord(232)})), 2);
    EXPECT_EQ(FilledRows(0), Rows({0, 231, 232}));
    ExpectCells(231, {{ZONE, "16"}, {RNSV, ""}});
}

TEST_F(Binary716, NumbersPastTheGridAreDroppedAndNotCounted) {
    EXPECT_EQ(Import(BinaryFile({BinaryRecord(233), BinaryRecord(5), BinaryRecord(65535)})), 1);
    EXPECT_EQ(FilledRows(0), Rows({0, 5}));
}

TEST_F(Binary716, NumberZeroIsTheDefaultRow) {
    EXPECT_EQ(Import(BinaryFile({BinaryRecord(0).Text(10, 8, "DEFAULT")})), 1);
    ExpectCells(0, {{MNUM, "000"}, {DESC, "DEFAULT"}});
    EXPECT_EQ(FilledRows(0), Rows({0}));
}

TEST_F(Binary716, APrimaryBringsItsShadows) {
    EXPECT_EQ(Import(BinaryFile({BinaryRecord(5).Word(2, 0x10).Word(88, 6).Word(90, 0).Word(92, 8)})), 1);
    ExpectCells(5, {{MFLG, "10"}, {SHAD, "P-2"}, {SHD0, "006"}, {SHD1, "000"}, {SHD2, "008"}, {SHD6, "000"}});
    EXPECT_TRUE(CurrentGrid()->IsReadOnly(5, SCAN));
    EXPECT_EQ(CurrentParameters().Flags, 0x08);
}

TEST_F(Binary716, AShadowNamesItsPrimary) {
    EXPECT_EQ(Import(BinaryFile({BinaryRecord(6).Word(2, 0x02).Word(4, 5)})), 1);
    ExpectCells(6, {{MFLG, "02"}, {SHAD, "S-005"}, {PRIM, "006"}, {ZONE, ""}, {SHD0, ""}});
    EXPECT_TRUE(CurrentGrid()->IsReadOnly(6, SCAN));
    EXPECT_EQ(CurrentParameters().Flags, 0);
    EXPECT_EQ(TakenSlots(), 0);
}

TEST_F(Binary716, FlagsTellShadowsAndPrimaries) {
    const std::tuple<int, const char*, bool> cases[] = {
        // flags, SHAD, without a scan mark
        {0x00, "N", false},    {0x08, "N", false},    {0x80, "N", false},    {0x60, "N", false},
        {0x01, "S-009", true}, {0x02, "S-009", true}, {0x03, "S-009", true}, {0x04, "S-009", true},
        {0x05, "S-009", true}, {0x06, "S-009", true}, {0x07, "S-009", true}, {0x10, "P-0", true},
        {0x17, "P-0", true},
    };
    for (const auto& [flags, shad, unscanned] : cases) {
        EXPECT_EQ(Import(BinaryFile({BinaryRecord(5).Word(2, flags).Word(4, 9)})), 1) << flags;
        EXPECT_EQ(Text(5, SHAD), shad) << flags;
        EXPECT_EQ(CurrentGrid()->IsReadOnly(5, SCAN), unscanned) << flags;
        EXPECT_EQ(CurrentParameters().Flags & 0x08, flags & 0x10 ? 0x08 : 0) << flags;
    }
}

TEST_F(Binary716, APlainMemoryCanBeScanned) {
    EXPECT_EQ(Import(BinaryFile({BinaryRecord(5)})), 1);
    EXPECT_EQ(Text(5, SHAD), "N");
    EXPECT_FALSE(CurrentGrid()->IsReadOnly(5, SCAN));
}

TEST_F(Binary716, ARowThatComesAgainHoldsItsLastRecordAndOneZoneSlot) {
    EXPECT_EQ(Import(BinaryFile({BinaryRecord(5).Text(40, 10, "90.0000"), BinaryRecord(6),
                                 BinaryRecord(5).Text(10, 8, "LAST")})),
              3);
    ExpectCells(5, {{DESC, "LAST"}, {RFRQ, "155.7525"}});
    EXPECT_EQ(TakenSlots(), 2);
    EXPECT_FALSE(IsPainted(5, RFRQ)) << "the record that was to be repaired has gone";
}

TEST_F(Binary716, AFileOfTheHeaderAloneHasNoRecord) {
    EXPECT_EQ(Import(BinaryHeader()), 0);
    EXPECT_EQ(FilledRows(0), Rows({0}));
}

TEST_F(Binary716, ALastRecordThatIsCutCountsFromItsNumberOn) {
    const std::string whole = BinaryFile({BinaryRecord(5), BinaryRecord(6)});
    for (size_t length = 0; length <= 106; ++length)
        EXPECT_EQ(Import(whole.substr(0, 32 + 106 + length)), length < 8 ? 1 : 2) << length;
}

TEST_F(Binary716, EachFieldOfARecordCanBeDumpedToTheLog) {
    Record716 record;
    const Field716 fields[] = {
        &Record716::Mflg, &Record716::Mnum, &Record716::Prim, &Record716::Scan, &Record716::Zone,
        &Record716::Desc, &Record716::Encr, &Record716::Mode, &Record716::Rsql, &Record716::Rtgp,
        &Record716::Rton, &Record716::Rcod, &Record716::Rnac, &Record716::Rfrq, &Record716::Tsql,
        &Record716::Ttgp, &Record716::Tton, &Record716::Tcod, &Record716::Tnac, &Record716::Tfrq,
        &Record716::Tidc, &Record716::Shd0, &Record716::Shd1, &Record716::Shd2, &Record716::Shd3,
        &Record716::Shd4, &Record716::Shd5, &Record716::Shd6, &Record716::Rfrn, &Record716::Tflg,
    };
    for (size_t i = 0; i < 30; ++i)
        record.*fields[i] = std::to_string(i);
    const std::vector<std::string> expected = {
        " .Mflg: 0",  " .Mnum: 1",  " .Prim: 2",  " .Scan: 3",  " .Zone: 4",  " .Desc: 5",
        " .Encr: 6",  " .Mode: 7",  " .Rsql: 8",  " .Rtgp: 9",  " .Rton: 10", " .Rcod: 11",
        " .Rnac: 12", " .Rfrq: 13", " .Tsql: 14", " .Ttgp: 15", " .Tton: 16", " .Tcod: 17",
        " .Tnac: 18", " .Tfrq: 19", " .Tidc: 20", " .Shd0: 21", " .Shd1: 22", " .Shd2: 23",
        " .Shd3: 24", " .Shd4: 25", " .Shd5: 26", " .Shd6: 27", " .Rfrn: 28", " .Tflg: 29",
    };
    testbench::LogKeeper log;
    Dump716Record(record);
    EXPECT_EQ(log.lines, expected);
}

TEST_F(Binary716, TheSampleHoldsItsChannels) {
    EXPECT_EQ(Import(SampleFile("kdrv-716.716")), 38);
    ExpectCells(1, {{DESC, "VCALL10"}, {RFRQ, "155.7525"}, {MODE, "n"}, {RTON, "156.7"}, {SCAN, "Y"}});
    ExpectCells(32, {{DESC, "P25 RPT"},
                     {MODE, "D"},
                     {RFRQ, "154.9500"},
                     {TFRQ, "159.0300"},
                     {RSQL, "n"},
                     {TSQL, "g"},
                     {RNAC, "68A"},
                     {RTGP, "2711"},
                     {TTGP, "2711"},
                     {TNAC, "68A"}});
    ExpectCells(34, {{SHAD, "P-2"}, {SHD0, "035"}, {SHD1, "036"}});
    ExpectCells(36, {{SHAD, "S-034"}, {MFLG, "02"}});
    ExpectCells(232, {{DESC, "AIRGUARD"}, {ZONE, "16"}, {RFRQ, "168.6250"}});
    for (int row : FilledRows(0))
        for (int col = 0; col < ColumnTotal; ++col)
            EXPECT_FALSE(IsPainted(row, col)) << row << " " << ColumnTag[col];
}
