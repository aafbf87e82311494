#include "catalogue/MemoryRow.h"

#include "tests/catalogue/PageTest.h"

namespace {

class MemoryRow : public PageTest {};

} // namespace

TEST_F(MemoryRow, GivesItsFlagsAsNumbers) {
    SetCell(3, MFLG, "317");
    SetCell(3, TFLG, "A8");
    EXPECT_EQ(MemoryFlags(CurrentGrid(), 3), 0x317);
    EXPECT_EQ(TransferFlags(CurrentGrid(), 3), 0xA8);
}

TEST_F(MemoryRow, HasNoFlagsInCellsWithoutANumber) {
    for (const char* text : {"", "x"}) {
        SetCell(3, MFLG, text);
        SetCell(3, TFLG, text);
        EXPECT_EQ(MemoryFlags(CurrentGrid(), 3), 0) << text;
        EXPECT_EQ(TransferFlags(CurrentGrid(), 3), 0) << text;
    }
}

TEST_F(MemoryRow, IsAShadowOrAPrimaryByItsMemoryFlags) {
    struct Line {
        const char* flags;
        bool shadow, primary;
    };
    for (const Line& line : std::initializer_list<Line>{{"", false, false},
                                                        {"00", false, false},
                                                        {"01", true, false},
                                                        {"07", true, false},
                                                        {"08", false, false},
                                                        {"10", false, true},
                                                        {"12", true, true},
                                                        {"E8", false, false},
                                                        {"300", false, false}}) {
        SetCell(3, MFLG, line.flags);
        SetCell(3, TFLG, "17"); // has no effect on either
        EXPECT_EQ(IsShadow(CurrentGrid(), 3), line.shadow) << line.flags;
        EXPECT_EQ(IsPrimary(CurrentGrid(), 3), line.primary) << line.flags;
    }
}
