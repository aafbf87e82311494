#include "editing/ZoneCell.h"
#include "tests/files/ChannelFileTest.h"
#include "tests/support/Keys.h"

#include <wx/notebook.h>

namespace {

class ChannelFileReader : public ChannelFileTest {};

struct Names {
    const char* name;
    const char* formerName;
    const char* readTypes; ///< separated by blanks; "*" for every type
};

/// By column.
constexpr Names CellNames[] = {
    {"MF", "MFLG", "RP25 NP25"}, {"MN", "MNUM", "*"},         {"PR", "PRIM", "RP25 NP25"},
    {"SH", "SHAD", "RP25 NP25"}, {"BD", "BAND", "MDLX"},      {"SC", "SCAN", "*"},
    {"ZN", "ZONE", "RP25 NP25"}, {"DS", "DESC", "*"},         {"MD", "MODE", "*"},
    {"RF", "RFRQ", "*"},         {"RS", "RSQL", "RP25 NP25"}, {"RV", "RNSV", "NP25"},
    {"RT", "RTON", "*"},         {"RC", "RCOD", "*"},         {"RG", "RTGP", "RP25 NP25"},
    {"RN", "RNAC", "RP25 NP25"}, {"TF", "TFRQ", "*"},         {"TS", "TSQL", "RP25 NP25"},
    {"TT", "TTON", "*"},         {"TC", "TCOD", "*"},         {"TG", "TTGP", "RP25 NP25"},
    {"TN", "TNAC", "RP25 NP25"}, {"TI", "TIDC", "RP25 NP25"}, {"S0", "SHD0", "RP25 NP25"},
    {"S1", "SHD1", "RP25 NP25"}, {"S2", "SHD2", "RP25 NP25"}, {"S3", "SHD3", "RP25 NP25"},
    {"S4", "SHD4", "RP25 NP25"}, {"S5", "SHD5", "RP25 NP25"}, {"S6", "SHD6", "RP25 NP25"},
    {"RY", "RONL", "KDAR"},
};

bool IsRead(const Names& cell, const std::string& type) {
    return std::string(cell.readTypes) == "*" || std::string(cell.readTypes).find(type) != std::string::npos;
}

/// All 31 elements, with the texts "v00" to "v30".
std::string AllCells(const char* Names::*name, bool reversed = false) {
    std::string text;
    for (int col = 0; col < 31; ++col) {
        const std::string tag = CellNames[col].*name;
        const std::string element =
            "<" + tag + ">" + wxString::Format("v%02d", col).utf8_string() + "</" + tag + ">";
        text = reversed ? element + text : text + element;
    }
    return text;
}

/// A P25 memory with the cells that these tests need.
std::string P25Memory(int row, const std::string& flags, const std::string& shad, const std::string& zone,
                      const std::string& scan = "Y") {
    return Memory(row, "<MF>" + flags + "</MF><MN>" + std::to_string(row) + "</MN><PR>1</PR><SH>" + shad +
                           "</SH><SC type=\"RP25\">" + scan + "</SC><ZN>" + zone + "</ZN><DS>MEM</DS>");
}

} // namespace

TEST_F(ChannelFileReader, ReadsTheCellsOfEachTypeUnderBothNames) {
    for (const TypedTarget& target : Targets)
        for (const auto name : {&Names::name, &Names::formerName}) {
            const std::string type = target.type;
            ASSERT_EQ(Open(FileOf(type, Memory(5, AllCells(name)))), 0) << type;
            for (int col = 0; col < 31; ++col) {
                std::string expected =
                    IsRead(CellNames[col], type) ? wxString::Format("v%02d", col).utf8_string() : "";
                if (col == ZONE && !expected.empty())
                    expected = "1"; // a zone missing from every list
                EXPECT_EQ(Text(5, col), expected) << type << " " << CellNames[col].*name;
            }
            EXPECT_EQ(Text(5, TFLG), "A0") << type;
        }
}

TEST_F(ChannelFileReader, TakesChildrenInAnyOrder) {
    for (const TypedTarget& target : Targets) {
        const std::string type = target.type;
        ASSERT_EQ(Open(FileOf(type, Memory(5, AllCells(&Names::name, true)))), 0) << type;
        for (int col = 0; col < 31; ++col)
            if (col != ZONE) {
                EXPECT_EQ(Text(5, col),
                          IsRead(CellNames[col], type) ? wxString::Format("v%02d", col).utf8_string() : "")
                    << type << " " << CellNames[col].name;
            }
    }
}

TEST_F(ChannelFileReader, StepsOverChildrenThatItDoesNotTake) {
    ASSERT_EQ(Open(FileOf("ANFM", Memory(5, "<XX>1</XX><MF>10</MF><MN>005</MN><mn>7</mn><DS>A</DS><RY>Y</RY>"
                                            "<DS2/><TC>023</TC>"))),
              0);
    EXPECT_EQ(Text(5, MNUM), "005");
    EXPECT_EQ(Text(5, DESC), "A");
    EXPECT_EQ(Text(5, TCOD), "023");
    EXPECT_EQ(Text(5, MFLG), "");
    EXPECT_EQ(Text(5, RONL), "");
    EXPECT_EQ(CurrentParameters().Flags & PageHasShadows, 0);
}

TEST_F(ChannelFileReader, ReadsRowsThatEndBeforeTheirType) {
    const std::pair<const char*, const char*> cases[] = {
        {"O12", "<MN>003</MN><RF>120.000</RF>"},
        {"ANAM", "<MN>003</MN><SC type=\"ANFM\">1</SC><DS>A</DS><RF>120.000</RF><TF>121.000</TF>"},
        {"FXAM", "<MN>003</MN><SC "
                 "type=\"\">1</SC><DS>A</DS><RF>120.000</RF><RT>OFF</RT><TF>121.000</TF><TT>OFF</TT>"},
        {"NP25", "<MF>0</MF>"},
    };
    for (const auto& [type, children] : cases) {
        ASSERT_EQ(Open(FileOf(type, Memory(3, children))), 0) << type;
        EXPECT_EQ(Text(3, MFLG), std::string(type) == "NP25" ? "0" : "") << type;
        EXPECT_EQ(Text(3, RFRQ), std::string(type) == "NP25" ? "" : "120.000") << type;
        EXPECT_EQ(Text(3, TFLG), "A0") << type;
    }
}

TEST_F(ChannelFileReader, AcceptsTheLongNamesOfTheHeader) {
    ASSERT_EQ(Open(Document("<Version>0.9</Version><Date>d</Date><Time>t</Time><FileType>ANFM</FileType>"
                            "<FileRadio>KRV-214</FileRadio><FileBand>FM 138-174</FileBand>"
                            "<Memory row=\"2\"><MNUM>002</MNUM></Memory>")),
              0);
    EXPECT_EQ(Text(2, MNUM), "002");
    EXPECT_EQ(CurrentParameters().Radio, 3);
}

TEST_F(ChannelFileReader, RefusesNoVersion) {
    for (const char* version : {"", "9.9.9", "none"})
        EXPECT_EQ(Open(Document("<Version>" + std::string(version) +
                                "</Version><Date/><Time/><FType>ANFM</FType><FRadio>KRV-47</FRadio>"
                                "<FBand>FM 66-88</FBand>")),
                  0)
            << version;
}

TEST_F(ChannelFileReader, TakesTheTargetOfTheFile) {
    const int types[] = {0, 1, 2, 3, 4, 5, 6, 7};
    const int columns[] = {10, 19, 20, 11, 2, 6, 5, 7};
    const int bands[] = {5, 4, 4, 8, 3, 3, 6, 6};
    for (size_t i = 0; i < std::size(Targets); ++i) {
        const TypedTarget& target = Targets[i];
        SCOPED_TRACE(target.type);
        ASSERT_EQ(Open(FileOf(target.type, "")), 0);
        const PageParameterRecord& page = CurrentParameters();
        EXPECT_EQ(page.Radio, target.radioIndex);
        EXPECT_EQ(page.BandIndex, target.bandSlot);
        EXPECT_EQ(page.Band, bands[i]);
        EXPECT_EQ(page.Rows, target.rows);
        EXPECT_EQ(page.Type, types[i]);
        EXPECT_EQ(page.Cols, columns[i]);
        EXPECT_EQ(PageStrings[0].RadioName, target.radio);
        EXPECT_EQ(PageStrings[0].BandName, target.band);
        EXPECT_EQ(PageStrings[0].TypeName, target.type);
        EXPECT_EQ(CurrentGrid()->GetNumberRows(), target.rows + 1);
        EXPECT_EQ(CurrentGrid()->GetRowLabelValue(target.rows), NumberText(target.rows));
        EXPECT_EQ(CurrentGrid()->GetColLabelValue(RFRQ), RadioCatalogue::ColumnHeading[types[i]][RFRQ]);
        EXPECT_EQ(Status(1), target.radio);
        EXPECT_EQ(Status(2), target.band);
        EXPECT_EQ(Status(3), std::to_string(target.rows) + " Rows");
        EXPECT_EQ(MainFrame->m_notebook->GetPageText(0), target.radio);
        const bool guards = target.rows % 10 == 2;
        EXPECT_EQ(GD1, guards ? target.rows - 1 : -1);
        EXPECT_EQ(GD2, guards ? target.rows : -1);
    }
}

TEST_F(ChannelFileReader, OfAFileWithoutTypeTakesTheTypeOfItsRadioAndBand) {
    struct Case {
        const char* radio;
        const char* band;
        int type;
    };
    constexpr Case cases[] = {
        {"ORV-12", "AM 118-138", 4},    {"KRV-620", "AM 225-400", 6},   {"KRV-620", "FM 138-174", 0},
        {"KDAR-2000", "AM 118-138", 5}, {"KDRV-716", "FM 136-174", 1},  {"KDRV-716B", "FM 136-174", 2},
        {"KDRV-4xxx", "K6 3-BAND", 3},  {"KDRV-4xxx", "AM 118-138", 6}, {"KDRV-8400", "AM 118-138", 6},
    };
    for (const Case& c : cases) {
        ASSERT_EQ(Open(Document(Header("", c.radio, c.band))), 0) << c.radio;
        EXPECT_EQ(CurrentParameters().Type, c.type) << c.radio << " " << c.band;
        EXPECT_EQ(PageStrings[0].TypeName, RadioCatalogue::RadioTypeName[c.type]);
    }
}

TEST_F(ChannelFileReader, ChangesTheColumnsWhenOnlyTheTypeDiffers) {
    RetargetTo("ANAM");
    ASSERT_EQ(CurrentGrid()->GetColSize(RTON), 0);
    ASSERT_EQ(Open(FileOf("FXAM", "")), 0);
    EXPECT_EQ(CurrentGrid()->GetColSize(RTON), 50);
    EXPECT_EQ(CurrentGrid()->GetColLabelValue(RTON), "RxTn");
    ASSERT_EQ(Open(FileOf("ANAM", "")), 0);
    EXPECT_EQ(CurrentGrid()->GetColSize(RTON), 0);
}

TEST_F(ChannelFileReader, LoadsAHeaderWithoutMemoriesAsAnEmptyPage) {
    for (const TypedTarget& target : Targets) {
        ASSERT_EQ(Open(FileOf(target.type, "")), 0) << target.type;
        EXPECT_EQ(FilledRows(0), std::vector<int>{0}) << target.type;
    }
}

TEST_F(ChannelFileReader, GivesAFileWithoutRowZeroTheDefaultRowOfItsTarget) {
    const std::pair<const char*, const char*> descriptions[] = {
        {"ANFM", "VHF   138"}, {"RP25", "VHF  136"}, {"NP25", "VHF  136"},  {"MDLX", "MODL   K6"},
        {"O12", "VHFAM 118"},  {"KDAR", "VHFAM118"}, {"ANAM", "UHFAM 225"}, {"FXAM", "UHFAM 225"},
    };
    for (const auto& [type, description] : descriptions) {
        ASSERT_EQ(Open(FileOf(type, Memory(2, "<MN>002</MN>"))), 0) << type;
        EXPECT_EQ(Text(0, DESC), description) << type;
        EXPECT_EQ(Text(0, TFLG), "A0") << type;
    }
}

TEST_F(ChannelFileReader, ReplacesTheDefaultRowByThatOfTheFile) {
    ASSERT_EQ(Open(FileOf("ANFM", Memory(0, "<MN>000</MN><DS>MINE</DS><RF>144.0000</RF>"))), 0);
    EXPECT_EQ(Text(0, DESC), "MINE");
    EXPECT_EQ(Text(0, RFRQ), "144.0000");
    EXPECT_EQ(Text(0, TFRQ), "174.0000") << "cells that the file lacks keep the default";
    EXPECT_EQ(Text(0, TFLG), "A0");
    EXPECT_TRUE(CurrentGrid()->IsReadOnly(0, MNUM));
}

TEST_F(ChannelFileReader, TakesTheRowFromItsAttributeWhateverTheNumber) {
    ASSERT_EQ(Open(FileOf("ANFM", Memory(40, "<MN>007</MN>"))), 0);
    EXPECT_EQ(Text(40, MNUM), "007");
    EXPECT_EQ(FilledRows(0), (std::vector<int>{0, 40}));
}

TEST_F(ChannelFileReader, ReadsAMemoryWithoutRowIntoRowZero) {
    ASSERT_EQ(Open(FileOf("ANFM", "<MEMORY><DS>ZERO</DS></MEMORY>")), 0);
    EXPECT_EQ(Text(0, DESC), "ZERO");
}

TEST_F(ChannelFileReader, PassesOverRowsOutsideTheGrid) {
    for (const char* row :
         {"103", "-1", "99999999999999999999", "-99999999999999999999", "x", "", "0x5x", " "}) {
        const bool isZero = std::string(row) == "0x5x"; // reads as 0
        ASSERT_EQ(Open(FileOf("ANFM", "<MEMORY row=\"" + std::string(row) + "\"><DS>GONE</DS></MEMORY>" +
                                          Memory(102, "<DS>LAST</DS>"))),
                  0)
            << row;
        EXPECT_EQ(FilledRows(0), (std::vector<int>{0, 102})) << "\"" << row << "\"";
        EXPECT_EQ(Text(0, DESC), isZero ? "GONE" : "VHF   138") << "\"" << row << "\"";
    }
}

TEST_F(ChannelFileReader, WritesTheLaterOfTwoEqualRowsOverTheEarlierCellByCell) {
    ASSERT_EQ(Open(FileOf("ANFM", Memory(9, "<MN>009</MN><DS>FIRST</DS><RF>150.0000</RF>") +
                                      Memory(9, "<MN>010</MN><DS>SECOND</DS>"))),
              0);
    EXPECT_EQ(Text(9, MNUM), "010");
    EXPECT_EQ(Text(9, DESC), "SECOND");
    EXPECT_EQ(Text(9, RFRQ), "150.0000");
}

TEST_F(ChannelFileReader, CountsOneZoneSlotForARowThatComesTwice) {
    ASSERT_EQ(Open(FileOf("NP25", P25Memory(9, "0", "N", "3") + P25Memory(9, "0", "N", "5"))), 0);
    EXPECT_EQ(Text(9, ZONE), "5");
    EXPECT_EQ(TakenSlots(), 1);
    EXPECT_EQ(ZoneSlotsOf(0)[4], 1);
}

TEST_F(ChannelFileReader, TakesTheLaterOfTwoZonesInARow) {
    ASSERT_EQ(Open(FileOf("NP25", Memory(9, "<MN>009</MN><ZN>3</ZN><ZN>5</ZN>"))), 0);
    EXPECT_EQ(Text(9, ZONE), "5");
    EXPECT_EQ(TakenSlots(), 1);
}

TEST_F(ChannelFileReader, EndsEachRowWithFlagsThatDoNotShowItsZoneSlot) {
    ASSERT_EQ(Open(FileOf("NP25", P25Memory(9, "0", "N", "3"))), 0);
    EXPECT_EQ(Text(9, TFLG), "A0");
    EXPECT_EQ(Text(9, ZONE), "3");
    EXPECT_EQ(ZoneSlotsOf(0)[2], 1);
    EXPECT_EQ(TakenSlots(), 1);
}

TEST_F(ChannelFileReader, GivesTheSeventeenthRowOfAZoneTheNextFreeOne) {
    std::string memories;
    for (int row = 1; row <= 17; ++row)
        memories += P25Memory(row, "0", "N", "1");
    ASSERT_EQ(Open(FileOf("RP25", memories)), 0);
    EXPECT_EQ(Text(16, ZONE), "1");
    EXPECT_EQ(Text(17, ZONE), "2");
    EXPECT_EQ(ZoneSlotsOf(0)[0], 16);
    EXPECT_EQ(ZoneSlotsOf(0)[1], 1);
}

TEST_F(ChannelFileReader, BringsPrimariesAndShadowsBackOutOfTheScanAndLocked) {
    ASSERT_EQ(Open(FileOf("NP25", P25Memory(5, "10", "P-1", "2") + P25Memory(6, "01", "S-005", "2") +
                                      P25Memory(7, "0", "N", "2"))),
              0);
    wxGrid* grid = CurrentGrid();
    EXPECT_EQ(Text(5, SCAN), "N");
    EXPECT_EQ(Text(6, SCAN), "N");
    EXPECT_EQ(Text(7, SCAN), "Y");
    EXPECT_TRUE(grid->IsReadOnly(5, SCAN));
    EXPECT_TRUE(grid->IsReadOnly(6, SCAN));
    EXPECT_FALSE(grid->IsReadOnly(7, SCAN));
    EXPECT_FALSE(grid->IsReadOnly(5, ZONE));
    EXPECT_TRUE(grid->IsReadOnly(6, ZONE)) << "a shadow has the zone of its primary";
    EXPECT_FALSE(grid->IsReadOnly(7, ZONE));
    EXPECT_EQ(Text(6, ZONE), "");
    EXPECT_EQ(TakenSlots(), 2) << "a shadow takes no slot";
}

TEST_F(ChannelFileReader, LocksScanOfRowsInZoneX) {
    ASSERT_EQ(Open(FileOf("NP25", P25Memory(5, "0", "N", "X") + P25Memory(6, "0", "N", "W"))), 0);
    EXPECT_TRUE(CurrentGrid()->IsReadOnly(5, SCAN));
    EXPECT_FALSE(CurrentGrid()->IsReadOnly(6, SCAN));
    ASSERT_EQ(Open(FileOf("NP25", P25Memory(5, "0", "N", "W") + P25Memory(6, "0", "N", "X"))), 0);
    EXPECT_FALSE(CurrentGrid()->IsReadOnly(5, SCAN));
    EXPECT_TRUE(CurrentGrid()->IsReadOnly(6, SCAN));
}

// Intentional: otherwise a shadow could be tuned or numbered apart from its primary.
TEST_F(ChannelFileReader, KeepsShadowsAndPrimariesLockedAsBeforeTheyWereSaved_Departure) {
    for (const char* type : {"RP25", "NP25"}) {
        SCOPED_TRACE(type);
        ASSERT_EQ(Open(FileOf(type, P25Memory(5, "10", "P-1", "2") + P25Memory(6, "01", "S-005", "2") +
                                        P25Memory(7, "0", "N", "2"))),
                  0);
        const auto lockedIn = [](int row) {
            std::vector<int> columns;
            for (int col = 0; col < ColumnTotal; ++col)
                if (CurrentGrid()->IsReadOnly(row, col))
                    columns.push_back(col);
            return columns;
        };
        EXPECT_EQ(lockedIn(5), (std::vector<int>{MNUM, SHAD, SCAN}));
        EXPECT_EQ(lockedIn(6), (std::vector<int>{MNUM, SHAD, SCAN, ZONE, RFRQ, TFRQ}));
        EXPECT_EQ(lockedIn(7), (std::vector<int>{SHAD}));
    }
}

TEST_F(ChannelFileReader, LetsNoKeyRetuneOrRenumberAShadowAlone) {
    testbench::ShowAndFocus(*MainFrame);
    ASSERT_EQ(Open(FileOf("NP25", P25Memory(5, "10", "P-1", "2") + P25Memory(6, "01", "S-005", "2"))), 0);
    testbench::TypeIntoCell(*CurrentGrid(), 6, RFRQ, "150.0");
    testbench::TypeIntoCell(*CurrentGrid(), 6, TFRQ, "151.0");
    testbench::TypeIntoCell(*CurrentGrid(), 6, MNUM, "99");
    testbench::TypeIntoCell(*CurrentGrid(), 5, MNUM, "98");
    EXPECT_EQ((std::vector<std::string>{Text(6, MNUM), Text(6, RFRQ), Text(6, TFRQ), Text(5, MNUM)}),
              (std::vector<std::string>{"6", "", "", "5"}));
    testbench::TypeIntoCell(*CurrentGrid(), 6, DESC, "own");
    EXPECT_EQ(Text(6, DESC), "own");
}

TEST_F(ChannelFileReader, LocksARowThatComesTwiceByWhatItIsInTheEnd) {
    ASSERT_EQ(Open(FileOf("NP25", P25Memory(6, "01", "S-005", "2") + P25Memory(6, "0", "N", "2") +
                                      P25Memory(7, "01", "S-005", "2") + Memory(7, "<DS>LAST</DS>"))),
              0);
    EXPECT_FALSE(CurrentGrid()->IsReadOnly(6, RFRQ));
    EXPECT_FALSE(CurrentGrid()->IsReadOnly(6, ZONE));
    EXPECT_TRUE(CurrentGrid()->IsReadOnly(7, RFRQ));
    EXPECT_TRUE(CurrentGrid()->IsReadOnly(7, ZONE));
}

TEST_F(ChannelFileReader, LeavesScanCellsOfOtherTypesAsTheyAre) {
    ASSERT_EQ(Open(FileOf("KDAR", Memory(5, "<SH>P-1</SH><SC type=\"RP25\">Y</SC>"))), 0);
    EXPECT_EQ(Text(5, SCAN), "Y");
    ASSERT_EQ(Open(FileOf("ANFM", Memory(5, "<SH>S-001</SH><SC type=\"ANFM\">31</SC>"))), 0);
    EXPECT_EQ(Text(5, SCAN), "31");
    EXPECT_FALSE(CurrentGrid()->IsReadOnly(5, SCAN));
}

TEST_F(ChannelFileReader, MarksAPageThatHoldsPrimariesOrShadows) {
    struct Case {
        const char* flags;
        bool shadows;
    };
    constexpr Case cases[] = {{"", false},  {"0", false}, {"08", false}, {"60", false}, {"10", true},
                              {"01", true}, {"07", true}, {"67", true},  {"1F", true},  {"G", false}};
    for (const Case& c : cases) {
        ASSERT_EQ(Open(FileOf("RP25", P25Memory(9, c.flags, "N", "1"))), 0) << c.flags;
        EXPECT_EQ((CurrentParameters().Flags & 0x08) != 0, c.shadows) << "\"" << c.flags << "\"";
    }
}

TEST_F(ChannelFileReader, LeavesRowsOfAP25PageThatTheFileLacksEmpty) {
    for (const char* type : {"RP25", "NP25"})
        for (const bool fromP25 : {false, true}) {
            fromP25 ? RetargetTo(type) : RetargetTo("ANFM");
            ASSERT_EQ(Open(FileOf(type, P25Memory(9, "0", "N", "4"))), 0);
            EXPECT_EQ(FilledRows(0), (std::vector<int>{0, 9})) << type << " from P25: " << fromP25;
            EXPECT_EQ(TakenSlots(), 1) << type << " from P25: " << fromP25;
        }
}

TEST_F(ChannelFileReader, GivesP25PagesTheZonesOfTheirGeneration) {
    ASSERT_EQ(Open(FileOf("NP25", P25Memory(9, "0", "N", "K"))), 0);
    EXPECT_EQ(Text(9, ZONE), "K");
    ASSERT_EQ(Open(FileOf("RP25", P25Memory(9, "0", "N", "K"))), 0);
    EXPECT_EQ(Text(9, ZONE), "1") << "the first generation has no zone K";
    EXPECT_EQ(RadioCatalogue::ZoneList.size(), 16u);
}

TEST_F(ChannelFileReader, GivesGuardRowsTheirZoneAndLocks) {
    ASSERT_EQ(Open(FileOf("RP25", P25Memory(231, "0", "N", "1") + P25Memory(232, "0", "N", "1"))), 0);
    EXPECT_EQ(Text(231, ZONE), "16");
    EXPECT_EQ(Text(232, ZONE), "16");
    for (int row : {231, 232})
        for (int col : {MNUM, SCAN, ZONE})
            EXPECT_TRUE(CurrentGrid()->IsReadOnly(row, col)) << row << " " << ColumnTag[col];
    ASSERT_EQ(Open(FileOf("ANFM", "")), 0);
    for (int row : {101, 102})
        for (int col : {MNUM, SCAN, RTON, RCOD})
            EXPECT_TRUE(CurrentGrid()->IsReadOnly(row, col)) << row << " " << ColumnTag[col];
}

TEST_F(ChannelFileReader, ClearsTheLocksOfFormerRows) {
    ASSERT_EQ(Open(FileOf("NP25", P25Memory(5, "10", "P-1", "2") + P25Memory(6, "01", "S-005", "2"))), 0);
    ASSERT_EQ(Open(FileOf("NP25", P25Memory(5, "0", "N", "2") + P25Memory(6, "0", "N", "2"))), 0);
    for (int row : {5, 6})
        for (int col : {SCAN, ZONE})
            EXPECT_FALSE(CurrentGrid()->IsReadOnly(row, col)) << row << " " << ColumnTag[col];
    ASSERT_EQ(Open(FileOf("ANAM", "")), 0);
    for (int row : {5, 101, 102, 200})
        for (int col : {MNUM, SCAN, ZONE, MODE, RTON, RCOD, RFRQ, TFRQ})
            EXPECT_FALSE(CurrentGrid()->IsReadOnly(row, col)) << row << " " << ColumnTag[col];
}

TEST_F(ChannelFileReader, GivesThePageTheEditorsOfTheFilesTarget) {
    const auto isP25ZoneCell = [](int row) {
        const wxGridCellEditorPtr editor(CurrentGrid()->GetCellEditor(row, ZONE));
        return dynamic_cast<P25ZoneEditor*>(editor.get()) != nullptr;
    };
    RetargetTo("ANFM");
    ASSERT_FALSE(isP25ZoneCell(1));
    ASSERT_EQ(Open(FileOf("NP25", "")), 0);
    for (int row : {0, 1, 103, 502})
        EXPECT_TRUE(isP25ZoneCell(row)) << row;
}

TEST_F(ChannelFileReader, EmptiesAndUnlocksEveryCellOfThePage) {
    RetargetTo("ANFM");
    wxGrid* grid = CurrentGrid();
    for (int row : {1, 50, 102})
        for (int col = 0; col < ColumnTotal; ++col) {
            SetCell(row, col, "old");
            grid->SetReadOnly(row, col);
        }
    const wxXmlDocument empty;
    ASSERT_EQ(OpenZelkFile(empty, 0), 101);
    for (int row : {1, 50, 102})
        for (int col = 0; col < ColumnTotal; ++col) {
            const bool guardLock = row == 102 && (col == MNUM || col == SCAN || col == RTON || col == RCOD);
            EXPECT_EQ(Text(row, col), "") << row << " " << ColumnTag[col];
            EXPECT_EQ(grid->IsReadOnly(row, col), guardLock) << row << " " << ColumnTag[col];
        }
}

TEST_F(ChannelFileReader, DropsATextOfBlanksButKeepsThoseInsideAText) {
    ASSERT_EQ(Open(FileOf("ANFM", Memory(5, "<MN>005</MN><DS>   </DS>") + Memory(6, "<DS>  A  B  </DS>"))),
              0);
    EXPECT_EQ(Text(5, DESC), "");
    EXPECT_EQ(Text(6, DESC), "  A  B  ");
}

TEST_F(ChannelFileReader, ChecksNoValue) {
    ASSERT_EQ(Open(FileOf("ANFM", Memory(5, "<MN>999</MN><MD>Q</MD><RF>bad</RF><RT>1.0</RT><RC>999</RC>"))),
              0);
    EXPECT_EQ(Text(5, MNUM), "999");
    EXPECT_EQ(Text(5, MODE), "Q");
    EXPECT_EQ(Text(5, RFRQ), "bad");
    EXPECT_EQ(Text(5, RTON), "1.0");
    EXPECT_EQ(Text(5, RCOD), "999");
}

TEST_F(ChannelFileReader, DoesNotConvertBack) {
    ASSERT_EQ(Open(FileOf("ANFM", Memory(5, "<MN>7</MN><RT>64</RT><RC>000</RC>"))), 0);
    EXPECT_EQ(Text(5, MNUM), "7");
    EXPECT_EQ(Text(5, RTON), "64");
    EXPECT_EQ(Text(5, RCOD), "000");
}

namespace {

struct CodeCase {
    const char* name;
    std::string document;
    int code;
};

std::string WithoutHeaderField(int left) {
    const std::string fields[] = {"<Version>1.0.0</Version>", "<Date>d</Date>",
                                  "<Time>t</Time>",           "<FType>ANFM</FType>",
                                  "<FRadio>KRV-214</FRadio>", "<FBand>FM 138-174</FBand>"};
    std::string text;
    for (int i = 0; i < 6; ++i)
        if (i != left)
            text += fields[i];
    return Document(text + Memory(1, "<DS>A</DS>"));
}

std::vector<CodeCase> HeaderCodes() {
    const std::string start = "<Version>1</Version><Date>d</Date><Time>t</Time>";
    return {
        {"another root", "<Zelk>" + HeaderOf("ANFM") + "</Zelk>", 102},
        {"root in small letters", "<zelkmem>" + HeaderOf("ANFM") + "</zelkmem>", 102},
        {"empty root", "<ZelkMem/>", 103},
        {"no version", WithoutHeaderField(0), 103},
        {"no date", WithoutHeaderField(1), 104},
        {"no time", WithoutHeaderField(2), 105},
        {"no type", WithoutHeaderField(3), 106},
        {"no radio", WithoutHeaderField(4), 107},
        {"no band", WithoutHeaderField(5), 108},
        {"version alone", Document("<Version>1</Version>"), 104},
        {"version in small letters", Document("<version>1</version>"), 103},
        {"date and time swapped", Document("<Version>1</Version><Time>t</Time><Date>d</Date>"), 104},
        {"radio before type", Document(start + "<FRadio>KRV-214</FRadio><FType>ANFM</FType>"), 106},
        {"type in small letters", Document(start + "<ftype>ANFM</ftype>"), 106},
        {"unknown type", Document(Header("XXXX", "KRV-214", "FM 138-174")), 106},
        {"type of another case", Document(Header("anfm", "KRV-214", "FM 138-174")), 106},
        {"unknown radio", Document(Header("ANFM", "KRV-999", "FM 138-174")), 107},
        {"empty radio", Document(Header("ANFM", "", "FM 138-174")), 107},
        {"label of a radio", Document(Header("RP25", "KDRV-716[A|B]", "FM 136-174")), 107},
        {"unknown band", Document(Header("ANFM", "KRV-214", "FM 1-2")), 108},
        {"empty band", Document(Header("ANFM", "KRV-214", "")), 108},
        {"band that the radio lacks", Document(Header("ANFM", "KRV-214", "FM 30-50")), 108},
        {"band that a full radio lacks", Document(Header("MDLX", "KDRV-4xxx", "FM 66-88")), 108},
        {"digital type of an analog radio", Document(Header("RP25", "KRV-214", "FM 138-174")), 106},
        {"analog type of a digital radio", Document(Header("ANFM", "KDRV-716", "FM 136-174")), 106},
    };
}

} // namespace

TEST_F(ChannelFileReader, AnswersWhatTheHeaderLacksAndStoresNothingOfIt) {
    for (const char* former : {"ANAM", "RP25"})
        for (const CodeCase& c : HeaderCodes()) {
            SCOPED_TRACE(std::string(c.name) + " on a page of type " + former);
            RetargetTo(former);
            SetCell(7, DESC, "OLD");
            const PageParameterRecord before = CurrentParameters();
            EXPECT_EQ(Open(c.document), c.code);
            const PageParameterRecord& after = CurrentParameters();
            EXPECT_EQ(after.Radio, before.Radio);
            EXPECT_EQ(after.Band, before.Band);
            EXPECT_EQ(after.BandIndex, before.BandIndex);
            EXPECT_EQ(after.Type, before.Type);
            EXPECT_EQ(after.Rows, before.Rows);
            EXPECT_EQ(after.Cols, before.Cols);
            EXPECT_EQ(PageStrings[0].RadioName, TargetOf(former).radio);
            EXPECT_EQ(PageStrings[0].BandName, TargetOf(former).band);
            EXPECT_EQ(PageStrings[0].TypeName, former);
            EXPECT_EQ(FilledRows(0), std::vector<int>{0}) << "the former content is gone";
            EXPECT_EQ(Text(0, DESC), std::string(former) == "RP25" ? "VHF  136" : "UHFAM 225");
            EXPECT_TRUE(CurrentGrid()->IsReadOnly(0, MNUM));
            EXPECT_EQ(TakenSlots(), 0);
        }
}

TEST_F(ChannelFileReader, AnswersThatADocumentHasNoRoot) {
    const wxXmlDocument empty;
    EXPECT_EQ(OpenZelkFile(empty, 0), 101);
    EXPECT_EQ(Text(0, DESC), "LOW    66");
}

TEST_F(ChannelFileReader, StopsAtAnElementThatIsNoMemoryAndKeepsTheRowsBeforeIt) {
    ASSERT_EQ(Open(FileOf("NP25", P25Memory(0, "0", "N", "1") + P25Memory(5, "10", "P-1", "2") + "<Other/>" +
                                      P25Memory(6, "0", "N", "2"))),
              109);
    EXPECT_EQ(FilledRows(0), (std::vector<int>{0, 5}));
    EXPECT_EQ(Text(0, DESC), "MEM") << "the file's own default row";
    EXPECT_TRUE(CurrentGrid()->IsReadOnly(5, SCAN));
    EXPECT_EQ(Status(1), "KDRV-716B");
    ASSERT_EQ(Open(FileOf("ANFM", "<Other/>")), 109);
    EXPECT_EQ(Text(0, DESC), "VHF   138");
}

TEST_F(ChannelFileReader, TakesEveryElementThatIsNamedLikeAMemory) {
    const std::pair<const char*, int> cases[] = {{"MEMORY", 0},   {"Memory", 0},   {"MyMemory2", 0},
                                                 {"XMEMORYX", 0}, {"memory", 109}, {"MEMORy", 109},
                                                 {"MEM", 109}};
    for (const auto& [name, code] : cases) {
        const std::string element = std::string("<") + name + " row=\"3\"><DS>A</DS></" + name + ">";
        EXPECT_EQ(Open(FileOf("ANFM", element)), code) << name;
        EXPECT_EQ(Text(3, DESC), code == 0 ? "A" : "") << name;
    }
}

TEST_F(ChannelFileReader, EndsWithTheCellsUnpainted) {
    CurrentGrid()->SetCellBackgroundColour(5, RFRQ, FailColour);
    ASSERT_EQ(Open(FileOf("ANFM", Memory(5, "<RF>150.0000</RF>"))), 0);
    EXPECT_NE(CurrentGrid()->GetCellBackgroundColour(5, RFRQ), FailColour);
}
