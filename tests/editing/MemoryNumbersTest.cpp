#include "editing/MemoryNumbers.h"

#include "tests/catalogue/PageTest.h"

namespace {

class MemoryNumbers : public PageTest {};

} // namespace

TEST_F(MemoryNumbers, OfAnotherRowAreFoundByWhatTheyRead) {
    SetCell(3, MNUM, "7");
    SetCell(5, MNUM, "007");
    SetCell(8, MNUM, "x");
    EXPECT_EQ(FindDuplicateMNum(1, 9, 122, 7), 3);
    EXPECT_EQ(FindDuplicateMNum(1, 3, 122, 7), 5) << "the row itself doesn't count";
    EXPECT_EQ(FindDuplicateMNum(4, 9, 122, 7), 5) << "from the start row on";
    EXPECT_EQ(FindDuplicateMNum(1, 9, 122, 0), 8) << "a text without digits reads 0";
}

TEST_F(MemoryNumbers, ThatNobodyHoldsAreFoundBehindTheLastRow) {
    SetCell(5, MNUM, "7");
    EXPECT_EQ(FindDuplicateMNum(1, 5, 122, 7), 123);
    EXPECT_EQ(FindDuplicateMNum(1, 9, 4, 7), 5) << "rows after the last one are not searched";
    EXPECT_EQ(FindDuplicateMNum(1, 9, 122, 0), 123) << "an empty number is none";
}

TEST_F(MemoryNumbers, InAnIndexAreThoseOfTheSearch) {
    for (int row : {1, 4, 9, 60})
        SetCell(row, MNUM, "12");
    SetCell(2, MNUM, "junk");
    SetCell(121, MNUM, "121");
    MemoryNumberIndex index(122);
    const auto expectSame = [&] {
        for (int number : {0, 12, 121, 122, 13, -1})
            for (int row = 1; row <= 122; ++row)
                ASSERT_EQ(index.FindDuplicate(row, number), FindDuplicateMNum(1, row, 122, number))
                    << "number " << number << ", row " << row;
    };
    expectSame();
    SetCell(1, MNUM, "");
    index.Change(1, "");
    SetCell(9, MNUM, "13");
    index.Change(9, "13");
    expectSame();
}
