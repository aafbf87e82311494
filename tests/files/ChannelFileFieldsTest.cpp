#include "files/ChannelFileFields.h"

#include <gtest/gtest.h>

#include <set>
#include <sstream>
#include <string>

using namespace ChannelFile;

namespace {

const std::string TypeNames[] = {"ANFM", "RP25", "NP25", "MDLX", "O12", "KDAR", "ANAM", "FXAM"};

/// One line per cell in file order: names, column, and the types for which the cell is read from a file.
struct PrintedCell {
    const char* name;
    const char* formerName;
    int column;
    const char* readTypes;
};

constexpr const char* All = "ANFM RP25 NP25 MDLX O12 KDAR ANAM FXAM";
constexpr const char* P25Types = "RP25 NP25";

constexpr PrintedCell PrintedCells[] = {
    {"MF", "MFLG", 0, P25Types},  {"MN", "MNUM", 1, All},       {"PR", "PRIM", 2, P25Types},
    {"SH", "SHAD", 3, P25Types},  {"BD", "BAND", 4, "MDLX"},    {"SC", "SCAN", 5, All},
    {"ZN", "ZONE", 6, P25Types},  {"DS", "DESC", 7, All},       {"MD", "MODE", 8, All},
    {"RF", "RFRQ", 9, All},       {"RS", "RSQL", 10, P25Types}, {"RV", "RNSV", 11, "NP25"},
    {"RT", "RTON", 12, All},      {"RC", "RCOD", 13, All},      {"RG", "RTGP", 14, P25Types},
    {"RN", "RNAC", 15, P25Types}, {"TF", "TFRQ", 16, All},      {"TS", "TSQL", 17, P25Types},
    {"TT", "TTON", 18, All},      {"TC", "TCOD", 19, All},      {"TG", "TTGP", 20, P25Types},
    {"TN", "TNAC", 21, P25Types}, {"TI", "TIDC", 22, P25Types}, {"S0", "SHD0", 23, P25Types},
    {"S1", "SHD1", 24, P25Types}, {"S2", "SHD2", 25, P25Types}, {"S3", "SHD3", 26, P25Types},
    {"S4", "SHD4", 27, P25Types}, {"S5", "SHD5", 28, P25Types}, {"S6", "SHD6", 29, P25Types},
    {"RY", "RONL", 30, "KDAR"},
};

/// Elements of a memory by radio type.
constexpr const char* PrintedChildren[] = {
    "MN SC DS MD RF RT RC TF TT TC",
    "MF MN PR SH SC ZN DS MD RF RS RT RC RG RN TF TS TT TC TG TN TI S0 S1 S2 S3 S4 S5 S6",
    "MF MN PR SH SC ZN DS MD RF RS RV RT RC RG RN TF TS TT TC TG TN TI S0 S1 S2 S3 S4 S5 S6",
    "MN BD SC DS MD RF RT RC TF TT TC",
    "MN RF",
    "MN SC DS RF TF RY",
    "MN SC DS RF TF",
    "MN SC DS RF RT TF TT",
};

bool Names(const std::string& list, const std::string& word) {
    std::istringstream words(list);
    for (std::string next; words >> next;)
        if (next == word)
            return true;
    return false;
}

} // namespace

TEST(ChannelFileFields, HaveTheirNamesAndColumnsInFileOrder) {
    ASSERT_EQ(std::size(CellElements), 31u);
    for (size_t i = 0; i < std::size(CellElements); ++i) {
        SCOPED_TRACE(PrintedCells[i].name);
        EXPECT_STREQ(CellElements[i].names.name, PrintedCells[i].name);
        EXPECT_STREQ(CellElements[i].names.formerName, PrintedCells[i].formerName);
        EXPECT_EQ(CellElements[i].column, PrintedCells[i].column);
    }
}

TEST(ChannelFileFields, AreReadFromTheFilesOfTheirTypes) {
    for (size_t i = 0; i < std::size(CellElements); ++i)
        for (int type = 0; type < 8; ++type)
            EXPECT_EQ(IsRead(CellElements[i], type), Names(PrintedCells[i].readTypes, TypeNames[type]))
                << PrintedCells[i].name << " of " << TypeNames[type];
}

TEST(ChannelFileFields, OfEachTypeAreThoseOfItsColumns) {
    for (int type = 0; type < 8; ++type) {
        std::string children;
        for (const CellElement& cell : CellElements)
            if (IsWritten(cell, type))
                children += (children.empty() ? "" : " ") + std::string(cell.names.name);
        EXPECT_EQ(children, PrintedChildren[type]) << TypeNames[type];
    }
}

TEST(ChannelFileFields, OfTheHeaderHaveTheirNamesInOrder) {
    const std::pair<const char*, const char*> printed[] = {
        {"Version", "Version"}, {"Date", "Date"},        {"Time", "Time"},
        {"FType", "FileType"},  {"FRadio", "FileRadio"}, {"FBand", "FileBand"},
    };
    ASSERT_EQ(static_cast<size_t>(FieldTotal), std::size(printed));
    for (int field = 0; field < FieldTotal; ++field) {
        EXPECT_STREQ(HeaderNames[field].name, printed[field].first);
        EXPECT_STREQ(HeaderNames[field].formerName, printed[field].second);
    }
}

TEST(ChannelFileFields, NameTypeAndScanFamily) {
    const std::pair<const char*, const char*> printed[] = {
        {"ANFM", "ANFM"}, {"RP25", "RP25"}, {"NP25", "RP25"}, {"MDLX", "ANFM"},
        {"", ""},         {"KDAR", "RP25"}, {"ANAM", "ANFM"}, {"", ""},
    };
    for (int type = 0; type < 8; ++type) {
        EXPECT_STREQ(TypeTextsOf[type].fileType, printed[type].first) << TypeNames[type];
        EXPECT_STREQ(TypeTextsOf[type].scanFamily, printed[type].second) << TypeNames[type];
    }
}
