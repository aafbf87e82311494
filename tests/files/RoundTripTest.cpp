// A saved page comes back unchanged.
#include "tests/files/ChannelFileTest.h"
#include "tests/support/Places.h"

#include <map>

namespace {

namespace fs = std::filesystem;

using Cells = std::map<int, std::vector<std::string>>;

class RoundTrip : public ChannelFileTest {
protected:
    /// Texts of all rows, without what a file doesn't hold: TFLG and the hidden columns of the type.
    static Cells Rows(const std::vector<int>& columns) {
        Cells rows;
        for (int row : FilledRows(0))
            for (int col : columns)
                rows[row].push_back(Text(row, col));
        return rows;
    }

    /// Fills some rows at both ends of the grid and in between.
    static void FillSomeRows() {
        const int last = CurrentParameters().Rows;
        FillRowsFromDefault({1, 2, 3, last / 2, last - 1, last});
        SetCell(0, DESC, "MINE 000");
        SetCell(2, MNUM, "004");
        SetCell(3, RFRQ, "123.4567");
        SetCell(3, TFRQ, "R/O");
    }
};

std::vector<int> Columns(const std::string& type) {
    if (type == "RP25" || type == "NP25") {
        std::vector<int> columns{MFLG, MNUM, PRIM, SHAD, SCAN, ZONE, DESC, MODE, RFRQ, RSQL,
                                 RTON, RCOD, RTGP, RNAC, TFRQ, TSQL, TTON, TCOD, TTGP, TNAC,
                                 TIDC, SHD0, SHD1, SHD2, SHD3, SHD4, SHD5, SHD6};
        if (type == "NP25")
            columns.push_back(RNSV);
        return columns;
    }
    if (type == "MDLX")
        return {MNUM, BAND, SCAN, DESC, MODE, RFRQ, RTON, RCOD, TFRQ, TTON, TCOD};
    if (type == "O12")
        return {MNUM, RFRQ};
    if (type == "KDAR")
        return {MNUM, SCAN, DESC, RFRQ, TFRQ, RONL};
    if (type == "ANAM")
        return {MNUM, SCAN, DESC, RFRQ, TFRQ};
    if (type == "FXAM")
        return {MNUM, SCAN, DESC, RFRQ, RTON, TFRQ, TTON};
    return {MNUM, SCAN, DESC, MODE, RFRQ, RTON, RCOD, TFRQ, TTON, TCOD};
}

} // namespace

TEST_F(RoundTrip, BringsThePagesOfEachTypeBackOnAnyPage) {
    for (const TypedTarget& target : Targets)
        for (const char* onto : {"ANFM", "NP25", "O12"}) {
            SCOPED_TRACE(std::string(target.type) + " onto " + onto);
            RetargetTo(target.type);
            FillSomeRows();
            // The default row's number has three digits in a file.
            SetCell(0, MNUM, "000");
            const Cells before = Rows(Columns(target.type));
            const std::string saved = Save();
            RetargetTo(onto);
            ASSERT_EQ(Open(saved), 0);
            // A file of FXAM names no type, and its radio has another type.
            const std::string type = std::string(target.type) == "FXAM" ? "ANAM" : target.type;
            EXPECT_EQ(PageStrings[0].TypeName, type);
            EXPECT_EQ(Rows(Columns(target.type)), before);
            EXPECT_EQ(TakenSlots(), RadioCatalogue::IsP25Type(CurrentParameters().Type) ? 6 : 0);
            if (type == target.type) {
                EXPECT_EQ(Masked(Save()), Masked(saved));
            }
        }
}

TEST_F(RoundTrip, KeepsPrimariesAndShadows) {
    for (const char* type : {"RP25", "NP25"}) {
        SCOPED_TRACE(type);
        RetargetTo(type);
        RetargetTo(type); // the first rows get their zones by the previous list
        FillRowsFromDefault({10, 20, 21});
        SetCells(10, {{MFLG, "10"}, {SHAD, "P-2"}, {SCAN, "N"}, {SHD0, "20"}, {SHD1, "21"}});
        SetCells(20, {{MFLG, "01"}, {SHAD, "S-010"}, {SCAN, "N"}, {PRIM, "010"}, {ZONE, ""}});
        SetCells(21, {{MFLG, "62"}, {SHAD, "S-010"}, {SCAN, "N"}, {PRIM, "010"}, {ZONE, ""}});
        SetCell(0, MNUM, "000");
        const Cells before = Rows(Columns(type));
        const std::string saved = Save();
        RetargetTo("ANFM");
        ASSERT_EQ(Open(saved), 0);
        EXPECT_EQ(Rows(Columns(type)), before);
        EXPECT_TRUE(CurrentParameters().Flags & 0x08);
        for (int row : {10, 20, 21})
            EXPECT_TRUE(CurrentGrid()->IsReadOnly(row, SCAN)) << row;
        EXPECT_EQ(Masked(Save()), Masked(saved));
        EXPECT_EQ(TakenSlots(), 4) << "row 1, the primary and two guard rows";
    }
}

TEST_F(RoundTrip, GivesEveryExampleFileBackByteForByte) {
    int files = 0;
    for (const auto& entry : fs::directory_iterator(testbench::ExamplesFolder())) {
        if (entry.path().extension() != ".zelk")
            continue;
        const std::string bytes = testbench::ReadFile(entry.path());
        ASSERT_EQ(Open(bytes), 0) << entry.path();
        EXPECT_EQ(Masked(Save()), Masked(bytes)) << entry.path();
        EXPECT_EQ(ToolTip(), "Saved saved.zelk") << entry.path();
        ++files;
    }
    EXPECT_EQ(files, 36);
}
