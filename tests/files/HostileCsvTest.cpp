// Lists that no program wrote: lines are skipped or repaired, in a short time.
#include "tests/files/CsvTest.h"
#include "tests/files/HangLimit.h"

#include <random>

using testbench::DialogKind;
using testbench::DialogScript;

namespace {

class HostileCsv : public CsvTest {
protected:
    /// Expects a default row, cells of reasonable length and zone slots within their bounds.
    static void ExpectUsablePage(const std::string& name) {
        EXPECT_TRUE(RowHasData(0)) << name;
        EXPECT_EQ(CurrentGrid()->GetNumberRows(), CurrentParameters().Rows + 1) << name;
        for (int row = 0; row < CurrentGrid()->GetNumberRows(); ++row)
            for (int col = 0; col < ColumnTotal; ++col)
                EXPECT_GE(260u, Text(row, col).size()) << name << ' ' << row << ' ' << ColumnTag[col];
        for (int zone = 0; zone < ZonesPerPage; ++zone)
            EXPECT_TRUE(ZoneSlotsOf(CurrentPage)[zone] >= 0 && ZoneSlotsOf(CurrentPage)[zone] <= 16) << name;
    }

    struct Hostile {
        const char* name;
        std::string bytes;
        int count;
        bool hasBox = false; ///< reports that there is no heading
    };

    /// Imports each list into an empty page of the type.
    template <class Reader>
    void ReadAll(const char* type, const std::vector<Hostile>& lists, Reader reader) {
        for (const Hostile& list : lists) {
            EmptyPageOf(type);
            DialogScript script;
            if (list.hasBox)
                script.Expect(DialogKind::Message, "Import CSV");
            const double start = ProcessorSeconds();
            EXPECT_EQ(reader(list.bytes), list.count) << list.name;
            EXPECT_LT(ProcessorSeconds() - start, HangLimit) << list.name;
            ExpectUsablePage(list.name);
        }
    }
};

std::string Numbered(int lines, const std::string& rest) {
    std::string all;
    for (int line = 1; line <= lines; ++line)
        all += std::to_string(line) + rest + "\n";
    return all;
}

std::string RandomBytes(size_t count, unsigned seed) {
    std::mt19937 random(seed);
    std::string bytes;
    for (size_t i = 0; i < count; ++i)
        bytes += static_cast<char>(random() % 256);
    return bytes;
}

} // namespace

TEST_F(HostileCsv, OfTheGeneralDialectLeavesAUsablePage) {
    const std::string heading = "MNUM,BAND,SCAN,ZONE,DESC,MODE,RFRQ,RSQL,RNSV,RTON,RCOD,RTGP,RNAC,TFRQ,TSQL,"
                                "TTON,TCOD,TTGP,TNAC,TIDC\n";
    const std::string longText(1'000'000, 'W');
    const std::string zeros(1000, '\0');
    ReadAll(
        "NP25",
        {
            {"random bytes", RandomBytes(200'000, 1), 0, true},
            {"random bytes after a heading", "MNUM,DESC\n" + RandomBytes(200'000, 2), 1},
            {"zero bytes only", zeros, 0, true},
            {"UTF-16",
             std::string("\xFF\xFEM\0N\0U\0M\0\n\0"
                         "5\0\n\0",
                         16),
             0, true},
            {"a million commas", heading + "5," + std::string(1'000'000, ',') + "\n", 1},
            {"a million quotes", heading + "5," + std::string(1'000'001, '"') + "\n", 1},
            {"long texts in every field", heading + "5" + Repeat("," + longText, 19) + "\n", 1},
            {"100000 lines of the same row", heading + Repeat("5,x,Y,C,A,D\n", 100'000), 502},
            {"a million blank lines", std::string(1'000'000, '\n') + heading + "5\n", 1},
            {"100000 headings and no line", Repeat(heading, 20'000), 0},
            {"keys beyond all numbers", heading + std::string(100'000, '9') + "\n-1\n503\n" + "0000502\n", 1},
            {"all rows in one zone", heading + Numbered(502, ",,,3"), 502},
            {"control characters", heading + "5,\x01,\x02,\x03,\x07\x1B[31m,\x08,\x0B,\x0C,\x0E\n", 1},
            {"a default row of nonsense", heading + "DEF,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?\n5\n", 2},
        },
        [this](const std::string& bytes) { return Import(bytes); });
}

TEST_F(HostileCsv, OfTheKdarDialectLeavesAUsablePage) {
    const std::string heading = "KDAR-2000,,,,,\nMemory,Name,Receive,Transmit,Scan,Rx Only\n";
    const std::string longText(1'000'000, 'W');
    ReadAll("KDAR",
            {
                {"the banner only", "KDAR-2000,Purge,,,,", 0, true},
                {"zero bytes only", std::string(1000, '\0'), 0, true},
                {"zero bytes as fields", heading + std::string("1,\0,\0,\0,\0,\0\n", 12), 1},
                {"commas only", heading + Repeat(",,,,,\n", 200), 100},
                {"a million commas", heading + "1" + std::string(1'000'000, ',') + "\n", 1},
                {"a million quotes", heading + "1," + std::string(1'000'001, '"') + "\n", 1},
                {"long texts in every field", heading + "1" + Repeat("," + longText, 5) + "\n", 1},
                {"100000 lines", heading + Repeat("1,A,118000,119000,Yes,No,\n", 100'000), 100},
                {"keys of no row", heading + Repeat("x,A\n-1,B\n101,C\n999999999999,D\n", 20'000), 0},
                {"frequencies of one character",
                 heading + "1,A,1,.\n2,B,..........,\n3,C,\xC3\xB6\xC3\xB6\xC3\xB6\xC3\xB6,x\n", 3},
                {"control characters", heading + "1,\x07\x1B[31m,\x01\x02\x03,\x04,\x05,\x06\n", 1},
                {"an open quote", heading + "1,\"A,118000\n2,B\n", 2},
            },
            [this](const std::string& bytes) { return ImportKdar(bytes); });
}

TEST_F(HostileCsv, WithBytesChangedLeavesAUsablePage) {
    std::mt19937 random(3);
    for (const char* type : {"NP25", "ANFM", "MDLX"}) {
        EmptyPageOf(type);
        for (int row = 1; row <= 9; ++row)
            FillRowsFromDefault({row});
        Select({1, 2, 3, 4, 5, 6, 7, 8, 9});
        const std::string whole = Export();
        for (int run = 0; run < 40; ++run) {
            EmptyPageOf(type);
            std::string bytes = whole;
            // The heading is kept, since nothing is read without it.
            const size_t lines = bytes.find('\n') + 1;
            for (int change = 0; change < 12; ++change)
                bytes[lines + random() % (bytes.size() - lines)] = static_cast<char>(random() % 256);
            const std::string name = type + std::to_string(run);
            const int count = Import(bytes);
            EXPECT_TRUE(count >= 0 && count <= 21) << name;
            ExpectUsablePage(name);
        }
    }
}

TEST_F(HostileCsv, ThatIsCutOffAnywhereKeepsTheWholeLines) {
    const std::string whole = "MNUM,DESC,RFRQ\n5,A,150.0000\n6,B,151.0000\n7,C,152.0000";
    for (size_t length = whole.find('\n') + 1; length <= whole.size(); ++length) {
        EmptyPageOf("ANFM");
        const std::string bytes = whole.substr(0, length);
        const auto ends = std::count(bytes.begin(), bytes.end(), '\n') - 1;
        const int count = Import(bytes);
        EXPECT_GE(count, ends) << length;
        EXPECT_LE(count, ends + 1) << length;
    }
}
