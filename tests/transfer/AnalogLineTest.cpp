#include "transfer/AnalogLine.h"

#include "catalogue/RadioCatalogue.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>

using namespace RadioCatalogue;

namespace {

/// The longest form: memory 001, a tower, no tones, no codes, locked out, narrow.
const wxString Tower = "001 TOWER1    150.0000RX 150.0000TX CTCSS: 64RX 64TX DPL: 000RX 000TX LOCK N";
const wxString ShortTower = "001 TOWER1    150.0000RX 150.0000TX CTCSS: 12TX DPL: 023TX 1_3__W";

std::string Text(const wxString& text) {
    return text.utf8_string();
}

std::string Text(const std::optional<wxString>& cell) {
    return cell ? Text(*cell) : "(did not come)";
}

wxString Replaced(wxString line, size_t position, const wxString& text) {
    return line.replace(position, text.length(), text);
}

struct TextCase {
    const char* name;
    wxString input;
    const char* expected;
};

void PrintTo(const TextCase& c, std::ostream* out) {
    *out << c.name << ": \"" << Text(c.input) << "\"";
}

class AnalogLine : public ::testing::Test {
protected:
    static void SetUpTestSuite() { RadioCatalogue::FillChoiceLists(); }
};

using PadFrequencyOf = AnalogLine;
using ScanText = AnalogLine;
using ToneText = AnalogLine;
using CodeText = AnalogLine;
using AnalogRadioLine = AnalogLine;

template <size_t count>
void Check(const TextCase (&cases)[count], wxString (*work)(const wxString&)) {
    for (const TextCase& c : cases)
        EXPECT_EQ(Text(work(c.input)), c.expected) << ::testing::PrintToString(c);
}

} // namespace

TEST_F(AnalogLine, LongFormHasItsFieldsAtTheirPlaces) {
    struct {
        const char* name;
        int position, width;
        AnalogPart part;
        const char* literal;
    } const expected[] = {
        {"number", 0, 3, NumberPart, ""},
        {"blank", 3, 1, LiteralPart, " "},
        {"description", 4, 9, DescriptionPart, ""},
        {"second blank", 13, 1, LiteralPart, " "},
        {"receive frequency", 14, 8, RxFrequencyPart, ""},
        {"RX", 22, 3, LiteralPart, "RX "},
        {"transmit frequency", 25, 8, TxFrequencyPart, ""},
        {"TX CTCSS", 33, 10, LiteralPart, "TX CTCSS: "},
        {"receive tone", 43, 2, RxTonePart, ""},
        {"RX of tones", 45, 3, LiteralPart, "RX "},
        {"transmit tone", 48, 2, TxTonePart, ""},
        {"TX DPL", 50, 8, LiteralPart, "TX DPL: "},
        {"receive code", 58, 3, RxCodePart, ""},
        {"RX of codes", 61, 3, LiteralPart, "RX "},
        {"transmit code", 64, 3, TxCodePart, ""},
        {"TX", 67, 3, LiteralPart, "TX "},
        {"scan", 70, 5, ScanPart, ""},
        {"mode", 75, 1, ModePart, ""},
    };
    ASSERT_EQ(std::size(LongAnalogForm), std::size(expected));
    for (size_t k = 0; k < std::size(expected); ++k) {
        EXPECT_EQ(LongAnalogForm[k].position, expected[k].position) << expected[k].name;
        EXPECT_EQ(LongAnalogForm[k].width, expected[k].width) << expected[k].name;
        EXPECT_EQ(LongAnalogForm[k].part, expected[k].part) << expected[k].name;
        EXPECT_STREQ(LongAnalogForm[k].literal, expected[k].literal) << expected[k].name;
    }
}

TEST_F(AnalogLine, ShortFormHasItsFieldsAtTheirPlaces) {
    struct {
        const char* name;
        int position, width;
        AnalogPart part;
    } const expected[] = {
        {"number", 0, 3, NumberPart},
        {"description", 4, 9, DescriptionPart},
        {"receive frequency", 14, 8, RxFrequencyPart},
        {"transmit frequency", 25, 8, TxFrequencyPart},
        {"transmit tone", 43, 2, TxTonePart},
        {"transmit code", 53, 3, TxCodePart},
        {"scan", 59, 5, ScanPart},
        {"mode", 64, 0, ModePart},
    };
    ASSERT_EQ(std::size(ShortAnalogForm), std::size(expected));
    for (size_t k = 0; k < std::size(expected); ++k) {
        EXPECT_EQ(ShortAnalogForm[k].position, expected[k].position) << expected[k].name;
        EXPECT_EQ(ShortAnalogForm[k].width, expected[k].width) << expected[k].name;
        EXPECT_EQ(ShortAnalogForm[k].part, expected[k].part) << expected[k].name;
    }
}

TEST_F(PadFrequencyOf, AnyTextHasThreeDigitsPointFourDigits) {
    Check(
        {
            {"unchanged", "155.0125", "155.0125"},
            {"short on both sides", "30.25", "030.2500"},
            {"two digits of MHz", "30.0000", "030.0000"},
            {"one digit of MHz", "5.1", "005.1000"},
            {"three decimals", "118.125", "118.1250"},
            {"nothing before the point", ".5", "000.5000"},
            {"nothing after the point", "155.", "155.0000"},
            {"five decimals are cut", "155.01256", "155.0125"},
            {"many decimals are cut", "30.123456789", "030.1234"},
            {"three digits without point", "155", "155.0000"},
            {"one digit without point", "7", "007.0000"},
            {"empty", "", "000.0000"},
            {"no digits", "n/a", "000.0000"},
            {"four digits of MHz", "1155.0000", "000.0000"},
            {"four digits without point", "1155", "000.0000"},
            {"letter in MHz", "1x5.0000", "000.0000"},
            {"letter in the decimals", "155.0x", "000.0000"},
            {"two points", "155.0.1", "000.0000"},
            {"sign", "-55.0000", "000.0000"},
            {"blank inside", "15 5.0", "000.0000"},
        },
        PadFrequency);
}

TEST_F(ScanText, NamesOneListACharacter) {
    Check(
        {
            {"no list", "0", "LOCK "},
            {"list 1", "1", "1____"},
            {"list 2", "2", "_2___"},
            {"list 3", "4", "__3__"},
            {"list 4", "8", "___4_"},
            {"list 5", "16", "____5"},
            {"lists 1 and 3", "5", "1_3__"},
            {"all lists", "31", "12345"},
            {"above the range", "32", "LOCK "},
            {"below the range", "-1", "LOCK "},
            {"many digits", "99999999999999999999", "LOCK "},
            {"empty", "", "LOCK "},
            {"no number", "N", "LOCK "},
        },
        ScanMaskToText);
}

TEST_F(ScanText, OfEveryMaskReadsBackAsTheMask) {
    for (int mask = 0; mask <= 31; ++mask) {
        const wxString number = wxString::Format("%d", mask);
        EXPECT_EQ(Text(ScanMaskToText(number)).size(), 5u) << mask;
        EXPECT_EQ(Text(ScanTextToNumber(ScanMaskToText(number))), Text(number));
    }
}

TEST_F(ScanText, CountsADigitOnlyAtItsPlace) {
    Check(
        {
            {"locked", "LOCK ", "0"},
            {"locked, shifted", " LOCK", "0"},
            {"all", "12345", "31"},
            {"lists 1 and 3", "1_3__", "5"},
            {"last", "____5", "16"},
            {"digits at wrong places", "23451", "0"},
            {"blanks", "     ", "0"},
            {"empty", "", "0"},
            {"short", "12", "3"},
        },
        ScanTextToNumber);
}

TEST_F(ToneText, IsThePositionInTheListForEachTone) {
    // By position. A text that isn't a tone goes out as 64.
    const char* const tones[] = {
        "OFF",   "67.0",  "71.9",  "74.4",  "77.0",  "79.7",  "82.5",  "85.4",  "88.5",  "91.5",  "94.8",
        "97.4",  "100.0", "103.5", "107.2", "110.9", "114.8", "118.8", "123.0", "127.3", "131.8", "136.5",
        "141.3", "146.2", "151.4", "156.7", "162.2", "167.9", "173.8", "179.9", "186.2", "192.8", "203.5",
        "33.0",  "35.4",  "36.6",  "37.9",  "39.6",  "44.4",  "47.5",  "49.2",  "51.2",  "53.0",  "54.9",
        "56.8",  "58.8",  "63.0",  "69.3",  "150.0", "165.5", "171.3", "177.3", "183.5", "189.9", "196.6",
        "199.5", "206.5", "210.7", "218.1", "225.7", "229.1", "233.6", "241.8", "250.3", "OFF",
    };
    ASSERT_EQ(std::size(tones), 65u);
    for (int k = 0; k < 65; ++k) {
        const std::string number = k < 10 ? "0" + std::to_string(k) : std::to_string(k);
        EXPECT_EQ(Text(ToneToText(tones[k])), k == 0 || k == 64 ? "64" : number) << tones[k];
        EXPECT_EQ(Text(TextToTone(number)), tones[k]) << number;
    }
}

TEST_F(ToneText, OfWhatTheListLacksIsSixtyFour) {
    Check(
        {
            {"not settable", "n/a", "64"},
            {"empty", "", "64"},
            {"zeros", "000", "64"},
            {"no tone", "67.1", "64"},
            {"short", "67", "64"},
        },
        ToneToText);
}

TEST_F(ToneText, PastTheListReadsAsEmpty) {
    EXPECT_EQ(Text(TextToTone("65")), "");
    EXPECT_EQ(Text(TextToTone("99")), "");
    EXPECT_EQ(Text(TextToTone("-1")), "");
}

TEST_F(ToneText, WithoutDigitsReadsAsOff) {
    EXPECT_EQ(Text(TextToTone("xx")), "OFF");
    EXPECT_EQ(Text(TextToTone("")), "OFF");
}

TEST_F(CodeText, AlwaysHasThreeCharacters) {
    Check(
        {
            {"a code", "023", "023"},
            {"the last code", "754", "754"},
            {"no code", "OFF", "000"},
            {"not settable", "n/a", "000"},
            {"empty", "", "000"},
            {"short", "23", "000"},
            {"long", "0231", "000"},
        },
        CodeToText);
}

TEST_F(CodeText, OfWhatTheListLacksReadsAsOff) {
    const auto read = [](const char* text) { return Text(TextToCode(text, ANFM)); };
    EXPECT_EQ(read("023"), "023");
    EXPECT_EQ(read("754"), "754");
    EXPECT_EQ(read("000"), "OFF");
    EXPECT_EQ(read(""), "OFF");
    EXPECT_EQ(read("999"), "OFF");
    EXPECT_EQ(read("xyz"), "OFF");
}

TEST(DescriptionText, HasNineCharacters) {
    const TextCase cases[] = {
        {"short", "TOWER1", "TOWER1   "},
        {"full", "TOWER1234", "TOWER1234"},
        {"cut", "TOWER12345678", "TOWER1234"},
        {"blanks at both ends", "  TOWER 1 ", "TOWER 1  "},
        {"empty", "", "         "},
        {"line end inside", "TOW\rER", "TOW ER   "},
        {"beyond ASCII", wxString::FromUTF8("T\xC3\xB6WER"), "T WER    "},
    };
    Check(cases, DescriptionToText);
}

TEST(ModeText, IsNarrowUnlessTheCellSaysOtherwise) {
    const TextCase cases[] = {
        {"narrow", "n", "N"}, {"not settable", "n/a", "N"},     {"empty", "", "N"},
        {"wide", "w", "W"},   {"narrow as in lists", "N", "N"}, {"wide as in lists", "W", "W"},
        {"other", "D", "D"},
    };
    Check(cases, ModeToText);
}

TEST_F(AnalogLine, IsPutTogetherInTheLongForm) {
    AnalogTexts texts;
    texts[DescriptionPart] = "TOWER1   ";
    texts[RxFrequencyPart] = texts[TxFrequencyPart] = "150.0000";
    texts[RxTonePart] = texts[TxTonePart] = "64";
    texts[RxCodePart] = texts[TxCodePart] = "000";
    texts[ScanPart] = "LOCK ";
    texts[ModePart] = "N";
    wxString out = "001 ";
    AppendAnalogFields(texts, out);
    EXPECT_EQ(Text(out), Text(Tower));
}

TEST_F(AnalogLine, OfAGuardNameHasNoReceiveToneCodeAndScan) {
    AnalogTexts texts;
    texts[DescriptionPart] = "GUARD    ";
    texts[RxFrequencyPart] = texts[TxFrequencyPart] = "150.0000";
    texts[RxTonePart] = "01";
    texts[TxTonePart] = "02";
    texts[RxCodePart] = "023";
    texts[TxCodePart] = "025";
    texts[ScanPart] = "12345";
    texts[ModePart] = "W";
    wxString out = "GD1 ";
    AppendAnalogFields(texts, out);
    EXPECT_EQ(Text(out), "GD1 GUARD     150.0000RX 150.0000TX CTCSS: 02TX DPL: 025TX W");
}

TEST_F(AnalogRadioLine, OfTheLongFormGivesItsCells) {
    const AnalogCells cells =
        ReadAnalogLine("017 HILL  4   030.2500RX 049.7500TX CTCSS: 01RX 63TX DPL: 023RX 754TX 1_3__W", 0);
    EXPECT_EQ(Text(cells.description), "HILL  4  ");
    EXPECT_EQ(Text(cells.rxFrequency), "30.2500");
    EXPECT_EQ(Text(cells.txFrequency), "49.7500");
    EXPECT_EQ(Text(cells.rxTone), "67.0");
    EXPECT_EQ(Text(cells.txTone), "250.3");
    EXPECT_EQ(Text(cells.rxCode), "023");
    EXPECT_EQ(Text(cells.txCode), "754");
    EXPECT_EQ(Text(cells.scan), "5");
    EXPECT_EQ(Text(cells.mode), "w");
}

TEST_F(AnalogRadioLine, OfTheShortFormHasNoReceiveToneAndCode) {
    ASSERT_TRUE(IsShortAnalogForm(ShortTower));
    const AnalogCells cells = ReadAnalogLine(ShortTower, ANFM);
    EXPECT_EQ(Text(cells.description), "TOWER1   ");
    EXPECT_EQ(Text(cells.rxFrequency), "150.0000");
    EXPECT_EQ(Text(cells.txFrequency), "150.0000");
    EXPECT_EQ(Text(cells.rxTone), "n/a");
    EXPECT_EQ(Text(cells.rxCode), "n/a");
    EXPECT_EQ(Text(cells.txTone), "100.0");
    EXPECT_EQ(Text(cells.txCode), "023");
    EXPECT_EQ(Text(cells.scan), "5");
    EXPECT_EQ(Text(cells.mode), "w");
}

TEST_F(AnalogRadioLine, OfTheShortFormWithoutCodeIsOff) {
    EXPECT_EQ(Text(ReadAnalogLine(Replaced(ShortTower, 53, "000"), ANFM).txCode), "OFF");
    EXPECT_EQ(Text(ReadAnalogLine(Replaced(ShortTower, 53, "999"), ANFM).txCode), "OFF");
    EXPECT_FALSE(ReadAnalogLine(ShortTower.Left(53), ANFM).txCode);
}

TEST_F(AnalogRadioLine, DropsOneLeadingZeroOfAFrequency) {
    const AnalogCells cells = ReadAnalogLine(Replaced(Replaced(Tower, 14, "030.0000"), 25, "005.0000"), ANFM);
    EXPECT_EQ(Text(cells.rxFrequency), "30.0000");
    EXPECT_EQ(Text(cells.txFrequency), "05.0000");
}

TEST_F(AnalogRadioLine, OfAModuleHasNoCodesWhereThereIsATransmitTone) {
    struct {
        const char* tone;
        const char *rxCode, *txCode;
    } const cases[] = {
        {"00", "023", "754"}, {"01", "OFF", "OFF"}, {"63", "OFF", "OFF"},
        {"64", "OFF", "OFF"}, {"65", "023", "754"},
    };
    const wxString coded = Replaced(Replaced(Tower, 58, "023"), 64, "754");
    for (const auto& c : cases) {
        const AnalogCells cells = ReadAnalogLine(Replaced(coded, 48, c.tone), MDLX);
        EXPECT_EQ(Text(cells.rxCode), c.rxCode) << c.tone;
        EXPECT_EQ(Text(cells.txCode), c.txCode) << c.tone;
        EXPECT_EQ(Text(ReadAnalogLine(Replaced(coded, 48, c.tone), ANFM).txCode), "754") << c.tone;
    }
}

TEST_F(AnalogRadioLine, ShorterThanItsScanFieldReadsScanAsZero) {
    const wxString scanned = Replaced(Tower, 70, "12345");
    EXPECT_EQ(Text(ReadAnalogLine(scanned, ANFM).scan), "31");
    EXPECT_EQ(Text(ReadAnalogLine(scanned.Left(75), ANFM).scan), "31");
    EXPECT_EQ(Text(ReadAnalogLine(scanned.Left(74), ANFM).scan), "0");
    EXPECT_EQ(Text(ReadAnalogLine(ShortTower.Left(64), ANFM).scan), "5");
    EXPECT_EQ(Text(ReadAnalogLine(ShortTower.Left(63), ANFM).scan), "0");
}

TEST_F(AnalogRadioLine, WithoutScanFieldHasItsModeThere) {
    EXPECT_EQ(Text(ReadAnalogLine(Tower.Left(70) + "N", ANFM).mode), "n");
    EXPECT_EQ(Text(ReadAnalogLine(Tower.Left(70) + "W", ANFM).mode), "w");
}

TEST_F(AnalogRadioLine, WithoutNInItsModeFieldIsWide) {
    for (const char* mode : {"W", "", " ", "n", "wide"})
        EXPECT_EQ(Text(ReadAnalogLine(Tower.Left(75) + mode, ANFM).mode), "w") << mode;
    for (const char* mode : {"N", " N", "WN"})
        EXPECT_EQ(Text(ReadAnalogLine(Tower.Left(75) + mode, ANFM).mode), "n") << mode;
}

TEST_F(AnalogRadioLine, OfTenThousandCharactersIsRead) {
    const AnalogCells cells = ReadAnalogLine(Tower + wxString('N', 10000), ANFM);
    EXPECT_EQ(Text(cells.description), "TOWER1   ");
    EXPECT_EQ(Text(cells.mode), "n");
}

TEST_F(AnalogRadioLine, HasNoPartOfAFieldThatDidNotComeWhole) {
    for (size_t length = 0; length <= Tower.length(); ++length) {
        const AnalogCells cells = ReadAnalogLine(Tower.Left(length), ANFM);
        const struct {
            const char* name;
            std::optional<wxString> cell;
            const char* text;
            size_t end;
        } fields[] = {
            {"receive frequency", cells.rxFrequency, "150.0000", 22},
            {"transmit frequency", cells.txFrequency, "150.0000", 33},
            {"receive tone", cells.rxTone, "OFF", 45},
            {"transmit tone", cells.txTone, "OFF", 50},
            {"receive code", cells.rxCode, "OFF", 61},
            {"transmit code", cells.txCode, "OFF", 67},
        };
        for (const auto& field : fields)
            EXPECT_EQ(Text(field.cell), length >= field.end ? field.text : "(did not come)")
                << field.name << " of " << length << " characters";
        EXPECT_EQ(Text(cells.description), Text(Tower.Mid(4, 9).Left(length > 4 ? length - 4 : 0))) << length;
        EXPECT_EQ(Text(cells.scan), "0") << length;
        EXPECT_EQ(Text(cells.mode), length == 76 ? "n" : "w") << length;
    }
}

TEST_F(AnalogRadioLine, ThatEndsBeforeTheFormsPartIsOfTheLongForm) {
    EXPECT_FALSE(IsShortAnalogForm(""));
    EXPECT_FALSE(IsShortAnalogForm(ShortTower.Left(45)));
    EXPECT_TRUE(IsShortAnalogForm(ShortTower.Left(46)));
    EXPECT_FALSE(IsShortAnalogForm(Tower.Left(46)));
}

TEST_F(AnalogRadioLine, HasANumberOnlyWithTheBlankBehindIt) {
    for (const char* line : {"", "0", "00", "001", "0011", "001TOWER1"})
        EXPECT_FALSE(HasAnalogNumber(line)) << line;
    for (const char* line : {"001 ", "GD1 TOWER1"})
        EXPECT_TRUE(HasAnalogNumber(line)) << line;
}

TEST_F(AnalogRadioLine, LosesItsParityBits) {
    wxString marked;
    for (wxUniChar c : Tower)
        marked += wxUniChar(c.GetValue() | 0x80);
    EXPECT_EQ(Text(StripParity(marked)), Text(Tower));
    EXPECT_EQ(Text(StripParity(Tower)), Text(Tower));
}

TEST_F(AnalogRadioLine, WithoutParityBitsHasItsLineEndsAndAcknowledgements) {
    wxString bytes;
    for (unsigned c : {0x8Du, 0x85u, 0x8Au, 0xB0u, 0x0Du, 0x80u, 0xFFu})
        bytes += wxUniChar(c);
    const wxString plain = ClearParity(bytes);
    ASSERT_EQ(plain.length(), 7u);
    EXPECT_EQ(Text(plain.Left(5)), "\r\x05\n0\r");
    EXPECT_EQ(plain[5].GetValue(), 0u);
    EXPECT_EQ(plain[6].GetValue(), 0x7Fu);
}

TEST_F(AnalogRadioLine, HasBlanksForWhatCannotBePrinted) {
    wxString line;
    for (unsigned c : {0x00u, 0x80u, 0x1Bu, 0xFFu, 0x7Fu, 0x41u, 0xC1u})
        line += wxUniChar(c);
    EXPECT_EQ(Text(StripParity(line)), "     AA");
}
