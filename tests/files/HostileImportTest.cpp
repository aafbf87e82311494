// Files that no programming software wrote: each is read as far as possible, in a short time.
#include "tests/files/HangLimit.h"
#include "tests/files/ImportTest.h"

#include <random>

using testbench::Matching;
using testbench::TextRule;

namespace {

constexpr size_t Megabyte = 1 << 20;
constexpr int ManyLines = 100000;
constexpr const char* Nothing = "Error: Unknown File Type.";

struct HostileFile {
    const char* name;
    std::string bytes;
    TextRule box;
    bool hasBox = false; ///< reports, before the import's box, that there is no heading
};

class HostileImport : public ImportTest {
protected:
    /// Imports each file into a page of each type; the first type by menu.
    void ImportAll(const std::vector<HostileFile>& files, std::initializer_list<const char*> types) {
        for (const char* type : types) {
            for (const HostileFile& file : files) {
                SCOPED_TRACE(std::string(file.name) + " into " + type);
                RetargetTo(type);
                const double start = ProcessorSeconds();
                testbench::DialogScript script;
                if (type == *types.begin()) {
                    testbench::WriteFile(m_folder / "file", file.bytes);
                    script.ExpectFile("Import file", (m_folder / "file").string());
                }
                if (file.hasBox)
                    script.Expect(testbench::DialogKind::Message, "Import CSV");
                if (type == *types.begin()) {
                    script.Expect(testbench::DialogKind::Message, "Import File").Message(file.box);
                    Choose(IdImport);
                } else {
                    EXPECT_GE(Import(file.bytes), 0);
                }
                EXPECT_LT(ProcessorSeconds() - start, HangLimit);
                EXPECT_EQ(CurrentGrid()->GetNumberRows(), CurrentParameters().Rows + 1);
                for (int zone = 0; zone < ZonesPerPage; ++zone)
                    EXPECT_LE(ZoneSlotsOf(CurrentPage)[zone], ZoneCapacity);
            }
        }
    }
};

std::string Repeated(const std::string& text, size_t times) {
    std::string all;
    all.reserve(text.size() * times);
    for (size_t i = 0; i < times; ++i)
        all += text;
    return all;
}

std::string RandomBytes(size_t size) {
    std::mt19937 random(716);
    std::string bytes(size, '\0');
    for (char& byte : bytes)
        byte = static_cast<char>(random());
    return bytes;
}

/// ManyLines texts, each made for one of the numbers 0 to 99 in turn.
template <class Make>
std::string ManyOf(Make make) {
    std::vector<std::string> hundred;
    for (int number = 0; number < 100; ++number)
        hundred.push_back(make(number));
    std::string all;
    for (int i = 0; i < ManyLines / 100; ++i)
        for (const std::string& one : hundred)
            all += one;
    return all;
}

std::string ThreeDigits(int number) {
    return wxString::Format("%03d", number).utf8_string();
}

std::string Counted(const std::string& kind, size_t lines) {
    return "Imported " + std::to_string(lines) + " Lines from " + kind + " file.";
}

/// Accepts any count, or the refusal, but only in the right words.
TextRule AnyCount(const std::string& kind) {
    return Matching("(Imported \\d+ Lines from " + kind + " file\\.|Error: Unknown File Type\\.)");
}

} // namespace

TEST_F(HostileImport, OfBinaryFilesEndsWithTheCount) {
    const std::string header = BinaryHeader();
    const auto counted = [](size_t records) { return Counted("716 Binary", records); };
    BinaryRecord full(5);
    for (size_t offset = 8; offset < 106; offset += 2)
        full.Word(offset, 0xFFFF);
    const std::string record = BinaryRecord(5).Bytes();
    ImportAll(
        {
            {"a header alone", header, Nothing},
            {"half a word", header + "\x05", Nothing},
            {"a record cut in a text", header + record.substr(0, 44), counted(1)},
            {"many records for few rows",
             header + ManyOf([](int number) { return BinaryRecord(number % 6).Bytes(); }),
             counted(ManyLines)},
            {"many records for no row", header + ManyOf([](int) { return BinaryRecord(999).Bytes(); }),
             Nothing},
            {"ones", header + std::string(Megabyte, '\xFF'), Nothing},
            {"zeros", header + std::string(Megabyte, '\0'), counted(Megabyte / 106 + 1)},
            {"newlines", header + std::string(Megabyte, '\n'), Nothing},
            {"semicolons", header + std::string(Megabyte, ';'), Nothing},
            {"random bytes", header + RandomBytes(Megabyte), AnyCount("716 Binary")},
            {"words of ones", header + full.Bytes(), counted(1)},
            {"every flag", header + BinaryRecord(5).Word(2, 0xFFFF).Bytes(), counted(1)},
            {"characters that are none",
             header + BinaryRecord(5).Text(10, 8, "\xC3\xC3\x80\xFF\xFE\xED\xA0\x80").Bytes(), counted(1)},
            {"surrogates as letters", header + BinaryRecord(5).Word(22, 0xD800).Word(50, 0xDFFF).Bytes(),
             counted(1)},
        },
        {"RP25", "NP25", "ANFM", "O12"});
}

TEST_F(HostileImport, OfListsEndsWithTheCount) {
    const std::string titles = ListFile({});
    const auto counted = [](size_t lines) { return Counted("716 Text", lines); };
    const auto line = [](int number) { return ListLine(ThreeDigits(number)) + "\n"; };
    std::string withZero = ListLine("004") + "\n";
    withZero[20] = '\0';
    ImportAll(
        {
            {"titles alone", titles, Nothing},
            {"many lines for few rows", titles + ManyOf([&](int number) { return line(number % 6); }),
             counted(ManyLines)},
            {"many numbers without a memory",
             titles + line(5) + ManyOf([](int) { return UndefinedLine("006") + "\n"; }),
             counted(ManyLines + 1)},
            {"a long line of digits", titles + std::string(Megabyte, '9') + "\n" + line(5), counted(1)},
            {"a long line of semicolons", titles + std::string(Megabyte, ';') + "\n" + line(5), counted(2)},
            {"empty lines", titles + std::string(Megabyte, '\n') + line(5), Nothing},
            {"zero bytes", titles + std::string(Megabyte, '\0'), Nothing},
            {"a zero byte in a line", titles + line(5) + withZero + line(6), counted(1)},
            {"random bytes", titles + RandomBytes(Megabyte), AnyCount("716 Text")},
            {"a shadow of itself", titles + ListLine("005", {{6, "S"}, {8, "005"}}) + "\n", counted(1)},
            {"shadows of shadows",
             titles + ListLine("004", {{6, "S"}, {8, "005"}}) + "\n" +
                 ListLine("005", {{6, "S"}, {8, "004"}}) + "\n",
             counted(2)},
            {"a shadow of nothing", titles + ListLine("004", {{6, "S"}, {8, "006"}}) + "\n", counted(1)},
            {"characters that are none", titles + Repeated(std::string(60, '\xC3') + "\n", 1000),
             counted(1000)},
            {"blanks", titles + Repeated(std::string(60, ' ') + "\n", 1000), Nothing},
        },
        {"RP25", "NP25", "ANFM", "O12"});
}

TEST_F(HostileImport, OfMultiZELFilesEndsWithTheCount) {
    const std::string first = MultiZELFileOf({});
    const auto counted = [](size_t lines) { return Counted("MultiZEL", lines + 2); };
    const auto line = [](int number) { return MultiZELLine(ThreeDigits(number)) + "\n"; };
    std::string withZero = line(4);
    withZero[9] = '\0';
    ImportAll(
        {
            {"two lines", first, counted(0)},
            {"many lines for few rows", first + ManyOf([&](int number) { return line(number % 6); }),
             counted(ManyLines)},
            {"many lines for no row", first + ManyOf([&](int) { return line(999); }), counted(ManyLines)},
            {"a long line of digits", first + std::string(Megabyte, '9'), counted(1)},
            {"a long line of semicolons", first + std::string(Megabyte, ';'), counted(1)},
            {"empty lines", first + std::string(ManyLines, '\n'), counted(ManyLines)},
            {"blank lines", first + Repeated(std::string(80, ' ') + "\n", 1000), counted(1000)},
            {"zero bytes", first + std::string(Megabyte, '\0'), counted(1)},
            {"a zero byte in a line", first + withZero + line(5), counted(2)},
            {"random bytes", first + RandomBytes(Megabyte), AnyCount("MultiZEL")},
            {"numbers below zero",
             first +
                 MultiZELLine("005", {{14, "-55.7525"}, {43, "-9"}, {48, "-1"}, {58, "-23"}, {70, "LLLLL"}}) +
                 "\n",
             counted(1)},
            {"characters that are none", first + std::string(80, '\xC3') + "\n", counted(1)},
        },
        {"RP25", "ANFM", "MDLX", "O12"});
}

TEST_F(HostileImport, OfCsvFilesEndsWithTheCount) {
    const std::string heading =
        "MNUM,BAND,SCAN,ZONE,DESC,MODE,RFRQ,RSQL,RNSV,RTON,RCOD,RTGP,RNAC,TFRQ,TSQL,TTON,"
        "TCOD,TTGP,TNAC,TIDC\n";
    const std::string three = "1,,Y,1,A,n\n2,,N,1,B,w\n3,,N,1,C,D\n";
    const auto counted = [](size_t lines) { return Counted("CSV", lines); };
    const auto line = [](int number) { return std::to_string(number) + ",,N,1,CHANNEL,n,155.7525\n"; };
    ImportAll(
        {
            {"headings alone", Repeated(heading, 4), Nothing},
            {"no heading", Repeated("1,2,3,4,5,6\n", 1000), Nothing, true},
            {"commas alone", Repeated(",,,,,,\n", 1000), Nothing, true},
            {"a spreadsheet's with semicolons and decimal commas",
             "MNUM;DESC;RFRQ;TFRQ\n" + Repeated("5;TOWER;155,7525;155,7525\n", 1000), Nothing},
            {"semicolons in lines that have commas enough",
             Repeated("5;TOWER;155,7525;155,7525;67,0;67,0;0,5;1,5\n", 1000), Nothing, true},
            {"many lines for few rows", heading + ManyOf([&](int number) { return line(number % 6); }),
             counted(502)},
            {"many lines for no row", heading + ManyOf([&](int) { return line(999); }), Nothing},
            {"a long line of digits", heading + three + std::string(Megabyte, '9') + "\n4,,,,,\n",
             counted(4)},
            {"a long line of commas", heading + "4" + std::string(Megabyte, ',') + "\n" + three, counted(4)},
            {"a long line of quotes", heading + three + "4," + std::string(Megabyte, '"') + "\n5,,,,,\n",
             counted(5)},
            {"a long name", heading + three + "4,,,," + std::string(Megabyte, 'W') + ",n\n", counted(4)},
            {"empty lines", heading + three + std::string(Megabyte, '\n') + "4,,,,,\n", counted(4)},
            {"zero bytes", heading + three + std::string(Megabyte, '\0'), counted(3)},
            {"zero bytes as fields", heading + three + Repeated(std::string("4,\0,\0,\0,\0,\0\n", 12), 3),
             counted(6)},
            {"zero bytes among the lines that identify the kind",
             heading + Repeated(std::string("4,\0,\0,\0,\0,\0\n", 12), 3), Nothing},
            {"quotes that stay open", heading + Repeated("4,\"A,,,,,\n", 3), counted(3)},
            {"random bytes", heading + three + RandomBytes(Megabyte), AnyCount("CSV")},
            {"numbers of every kind",
             heading + three +
                 "+4,,,,,\n-4,,,,,\n4.,,,,,\n0x4,,,,,\n99999999999999999999,,,,,\n0000005,,,,,\n",
             counted(4)},
            {"characters that are none", heading + three + "4,,,," + std::string(1000, '\xC3') + ",\xFF\n",
             counted(4)},
        },
        {"NP25", "ANFM", "O12"});
}

TEST_F(HostileImport, OfKdarListsEndsWithTheCount) {
    const std::string banner = "KDAR-2000,,,,,\n";
    const std::string headings = banner + "Memory,Name,Receive,Transmit,Scan,Rx Only\n";
    const auto counted = [](size_t lines) { return Counted("KDAR", lines); };
    const auto line = [](int number) { return std::to_string(number) + ",TOWER,121500,121500,Yes,No,\n"; };
    ImportAll(
        {
            {"the banner alone", banner, Nothing, true},
            {"headings alone", headings, Nothing},
            {"a long banner", "KDAR-2000" + std::string(Megabyte, 'x') + "\nMemory\n" + line(1), counted(1)},
            {"many lines for few rows", headings + ManyOf([&](int number) { return line(number % 6); }),
             counted(100)},
            {"many lines for no row", headings + ManyOf([&](int) { return line(999); }), Nothing},
            {"a spreadsheet's with semicolons and decimal commas",
             headings + Repeated("1;TOWER;121,500;121,500;Yes;No\n", 1000), Nothing},
            {"commas alone", headings + Repeated(",,,,,,\n", 1000), counted(100)},
            {"a long line of digits", headings + std::string(Megabyte, '9') + "\n" + line(1), counted(1)},
            {"a long line of commas", headings + "1" + std::string(Megabyte, ',') + "\n" + line(1),
             counted(2)},
            {"a long line of quotes", headings + "1," + std::string(Megabyte, '"') + "\n" + line(1),
             counted(2)},
            {"long fields",
             headings + "1," + std::string(Megabyte, 'W') + "," + std::string(Megabyte, '1') + "\n",
             counted(1)},
            {"empty lines", headings + std::string(Megabyte, '\n') + line(1), counted(1)},
            // The first zero byte is a key, an empty one.
            {"zero bytes", headings + std::string(Megabyte, '\0'), counted(1)},
            {"zero bytes as fields", headings + Repeated(std::string("1,\0,\0,\0,\0,\0\n", 12), 3),
             counted(3)},
            {"quotes that stay open", headings + Repeated("1,\"A,,,,,\n", 3), counted(3)},
            {"random bytes", headings + RandomBytes(Megabyte), AnyCount("KDAR")},
            {"characters that are none", headings + "1," + std::string(1000, '\xC3') + ",\xFF\n", counted(1)},
        },
        {"KDAR", "NP25"});
}

TEST_F(HostileImport, OfACsvFileMayEndAnywhere) {
    RetargetTo("ANFM");
    const std::string line = "5,N,TOWER,W,155.7525,156.7525\n";
    const std::string whole = "MNUM,SCAN,DESC,MODE,RFRQ,TFRQ\n" + line + line + line + line;
    for (size_t length = whole.size() - line.size(); length <= whole.size(); ++length)
        EXPECT_EQ(Import(whole.substr(0, length)), length == whole.size() - line.size() ? 3 : 4) << length;
}

TEST_F(HostileImport, OfAKdarListMayEndAnywhere) {
    RetargetTo("KDAR");
    const std::string before =
        "KDAR-2000,,,,,\nMemory,Name,Receive,Transmit,Scan,Rx Only\n1,A,118000,,No,No,\n";
    const std::string last = "2,TOWER,121500,121500,Yes,No,\n";
    for (size_t length = 0; length <= last.size(); ++length)
        EXPECT_EQ(Import(before + last.substr(0, length)), length == 0 ? 1 : 2) << length;
}

TEST_F(HostileImport, OfABinaryFileMayEndAnywhere) {
    RetargetTo("RP25");
    const std::string whole =
        BinaryFile({BinaryRecord(5).Word(2, 0x10), BinaryRecord(6).Word(2, 0x01).Word(4, 5)});
    for (size_t length = 0; length <= whole.size(); ++length) {
        const size_t records = length < 32 ? 0 : (length - 32 + 106 - 8) / 106;
        EXPECT_EQ(Import(whole.substr(0, length)), static_cast<int>(records)) << length;
    }
}

TEST_F(HostileImport, OfAListMayEndAnywhere) {
    RetargetTo("RP25");
    const std::string before = ListFile({ListLine("005")}), last = ListLine("006", {{6, "S"}, {8, "005"}});
    for (size_t length = 0; length <= last.size(); ++length)
        EXPECT_EQ(Import(before + last.substr(0, length)), length < 50 ? 1 : 2) << length;
}

TEST_F(HostileImport, OfAMultiZELFileMayEndAnywhere) {
    RetargetTo("ANFM");
    const std::string before = MultiZELFileOf({}), last = MultiZELLine("006");
    for (size_t length = 0; length <= last.size(); ++length)
        EXPECT_EQ(Import(before + last.substr(0, length)), length == 0 ? 2 : 3) << length;
}

TEST_F(HostileImport, OfBytesThatAreChangedLeavesTheDefaultRowWhole) {
    RetargetTo("NP25");
    std::mt19937 random(2);
    for (const char* sample : {"kdrv-716.716", "kdrv-716.txt", "krv-630-vhf.630"}) {
        const std::string whole = SampleFile(sample);
        for (int run = 0; run < 25; ++run) {
            std::string bytes = whole;
            for (int change = 0; change < 20; ++change)
                bytes[200 + random() % (bytes.size() - 200)] = static_cast<char>(random());
            SCOPED_TRACE(sample + std::to_string(run));
            EXPECT_GE(Import(bytes), 0);
            EXPECT_TRUE(RowHasData(0));
            EXPECT_TRUE(CurrentGrid()->IsReadOnly(0, MNUM));
        }
    }
}
