// Recognition of a file's kind by its contents alone.
#include "tests/files/ImportTest.h"
#include "tests/support/Places.h"

namespace {

class Identified : public ImportTest {};

constexpr const char* CsvLine = "MNUM,DESC,RFRQ,TFRQ,RTON,TTON\n";

std::string CsvFileOf(int lines) {
    std::string bytes;
    for (int i = 0; i < lines; ++i)
        bytes += CsvLine;
    return bytes;
}

struct KindCase {
    int number;
    const char* word;
    std::string bytes;
};

std::vector<KindCase> KindCases() {
    return {
        {0, "UNKNOWN", "nothing of the kind\n"},
        {1, "716 Binary", BinaryFile({BinaryRecord()})},
        {2, "716 Text", ListFile({ListLine("001")})},
        {3, "MultiZEL", MultiZELFileOf({})},
        {4, "CSV", CsvFileOf(4)},
        {5, "KDAR", "KDAR-2000,,,,,\nMemory,Name,Receive,Transmit,Scan,Rx Only\n"},
    };
}

} // namespace

TEST_F(Identified, AreTheKindsByTheirNumbersAndWords) {
    for (const KindCase& kind : KindCases()) {
        EXPECT_EQ(Identify(kind.bytes), kind.number) << kind.word;
        EXPECT_STREQ(FileKindWord[kind.number], kind.word);
    }
}

TEST_F(Identified, IsA716FileWhateverItsNameSays) {
    testbench::WriteFile(m_folder / "memories.csv", BinaryFile({BinaryRecord()}));
    FileImporter importer;
    EXPECT_EQ(importer.Identify((m_folder / "memories.csv").string()), 1);
}

TEST_F(Identified, IsAHeaderByTheTestedBytesAlone) {
    const std::string header = BinaryHeader();
    ASSERT_EQ(header.size(), 32u);
    for (size_t at = 0; at < header.size(); ++at) {
        std::string changed = header;
        changed[at] ^= 0x20;
        const bool tested = at < 10 || (at >= 15 && at < 25);
        EXPECT_EQ(Identify(changed), tested ? 0 : 1) << "byte " << at;
    }
}

TEST_F(Identified, IsNoHeaderThatIsCut) {
    for (size_t length = 0; length < 32; ++length)
        EXPECT_EQ(Identify(BinaryHeader().substr(0, length)), 0) << length;
    EXPECT_EQ(Identify(BinaryHeader()), 1);
}

TEST_F(Identified, IsAMultiZELFileByBothLines) {
    const std::string first = MultiZELLine("001"), second = MultiZELLine("002");
    EXPECT_EQ(Identify(Joined({first, second})), 3);
    const std::pair<const char*, std::vector<std::string>> cases[] = {
        {"one line", {first}},
        {"first number", {MultiZELLine("003"), second}},
        {"second number", {first, MultiZELLine("003")}},
        {"first heading", {MultiZELLine("001", {{33, "RX"}}), second}},
        {"second heading", {first, MultiZELLine("002", {{33, "RX"}})}},
        {"heading elsewhere", {" " + first, second}},
        {"a line between", {first, "", second}},
    };
    for (const auto& [name, lines] : cases)
        EXPECT_EQ(Identify(Joined(lines)), 0) << name;
}

TEST_F(Identified, IsA716ListByItsTitles) {
    const std::string first = Placed({{5, "Basic Information"}, {32, "Rx Information"}});
    const std::string second = Placed({{3, "Ch# Scan  Desc"}});
    EXPECT_EQ(Identify(Joined({first, second})), 2);
    const std::pair<const char*, std::vector<std::string>> cases[] = {
        {"one line", {first}},
        {"basic elsewhere", {Placed({{6, "Basic Information"}, {32, "Rx Information"}}), second}},
        {"rx elsewhere", {Placed({{5, "Basic Information"}, {31, "Rx Information"}}), second}},
        {"second elsewhere", {first, Placed({{2, "Ch# Scan  Desc"}})}},
        {"other second", {first, Placed({{3, "Ch# Scan Desc"}})}},
    };
    for (const auto& [name, lines] : cases)
        EXPECT_EQ(Identify(Joined(lines)), 0) << name;
}

TEST_F(Identified, IsAKdarListByItsBeginning) {
    EXPECT_EQ(Identify("KDAR-2000"), 5);
    EXPECT_EQ(Identify("KDAR-2000,,,,,\n" + CsvFileOf(4)), 5) << "before it is a CSV file";
    EXPECT_EQ(Identify(" KDAR-2000"), 0);
    EXPECT_EQ(Identify("kdar-2000"), 0);
}

TEST_F(Identified, IsACsvFileByFiveCommasInEachOfFourLines) {
    EXPECT_EQ(Identify(CsvFileOf(4)), 4);
    EXPECT_EQ(Identify(CsvFileOf(4) + "no commas\n"), 4);
    EXPECT_EQ(Identify(CsvFileOf(2)), 0) << "two lines";
    EXPECT_EQ(Identify(CsvFileOf(3)), 0) << "three lines";
    EXPECT_EQ(Identify(CsvFileOf(3) + "a,b,c,d,e\n"), 0) << "four commas";
    EXPECT_EQ(Identify(CsvFileOf(3) + "\n" + CsvFileOf(1)), 0) << "a line without any between";
}

TEST_F(Identified, CountsCommasInTheFirstHundredCharactersOnly) {
    const std::string counted = std::string(95, 'a') + ",,,,,";
    const std::string tooFar = std::string(96, 'a') + ",,,,,";
    EXPECT_EQ(Identify(Joined({counted, counted, counted, counted})), 4);
    EXPECT_EQ(Identify(Joined({counted, counted, tooFar, counted})), 0);
    std::string umlauts; // each is two bytes
    for (int i = 0; i < 95; ++i)
        umlauts += "\xC3\xA4";
    EXPECT_EQ(Identify(Joined({umlauts + ",,,,,", counted, counted, counted})), 4) << "characters, not bytes";
}

TEST_F(Identified, DropsTheRestOfALongLine) {
    const std::string line = std::string(5, ',') + std::string(1 << 20, 'a');
    EXPECT_EQ(Identify(Joined({line, line, line, line})), 4);
}

TEST_F(Identified, ReadsLinesOfAnyEnd) {
    for (const char* end : {"\n", "\r", "\r\n"}) {
        SCOPED_TRACE(end[0] == '\n' ? "LF" : end[1] ? "CRLF" : "CR");
        EXPECT_EQ(Identify(ListFile({}, end)), 2);
        EXPECT_EQ(Identify(MultiZELFileOf({}, end)), 3);
        EXPECT_EQ(Identify(Joined({",,,,,", ",,,,,", ",,,,,", ",,,,,"}, end)), 4);
    }
}

TEST_F(Identified, SkipsAByteOrderMarkOfTexts) {
    for (const KindCase& kind : KindCases()) {
        const bool isText = kind.number != 1;
        EXPECT_EQ(Identify(ByteOrderMark + kind.bytes), isText ? kind.number : 0) << kind.word;
    }
}

TEST_F(Identified, IsNothingThatCannotBeRead) {
    FileImporter importer;
    EXPECT_EQ(importer.Identify((m_folder / "missing").string()), 0);
    importer.Close();
    EXPECT_EQ(importer.Identify(m_folder.Path().string()), 0);
    importer.Close();
    EXPECT_EQ(Identify(""), 0);
}

TEST_F(Identified, IsNothingWhileAnotherFileIsOpen) {
    testbench::WriteFile(m_folder / "file", BinaryHeader());
    const wxString path = (m_folder / "file").string();
    FileImporter importer;
    EXPECT_EQ(importer.Identify(path), 1);
    EXPECT_EQ(importer.Identify(path), 0);
    importer.Close();
    EXPECT_EQ(importer.Identify(path), 1);
}

TEST_F(Identified, AreTheSamplesAfterTheirNames) {
    int samples = 0;
    for (const auto& entry : std::filesystem::directory_iterator(testbench::SamplesFolder())) {
        const std::string name = entry.path().filename().string();
        const std::string extension = entry.path().extension().string();
        if (extension.empty())
            continue;
        const bool semicolons = name.find("semicolons") != name.npos;
        const int list = semicolons ? 0 : name.starts_with("kdar-") ? 5 : 4;
        const int expected = extension == ".716"   ? 1
                             : extension == ".txt" ? 2
                             : extension == ".csv" ? list
                                                   : 3;
        EXPECT_EQ(Identify(testbench::ReadFile(entry.path())), expected) << name;
        ++samples;
    }
    EXPECT_EQ(samples, 27);
}
