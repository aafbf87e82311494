// Frequencies typed into a primary: copied to its shadows, whose numbers count as row numbers.
#include "tests/editing/CommandTest.h"

namespace {

class LinkedFrequency : public CommandTest {
protected:
    void SetUp() override {
        CommandTest::SetUp();
        testbench::ShowAndFocus(*MainFrame);
        Retarget(Kdrv716, 0);
        Fill({10, 20, 30});
        Link(10, {11, 12});
    }
};

} // namespace

TEST_F(LinkedFrequency, IsCarriedByEitherCellOfThePrimary) {
    testbench::TypeIntoCell(*CurrentGrid(), 10, TFRQ, "155.5");
    EXPECT_EQ(Column(RFRQ, {10, 11, 12, 20}), (Texts{"136.0000", "136.0000", "136.0000", "136.0000"}));
    EXPECT_EQ(Column(TFRQ, {10, 11, 12, 20}), (Texts{"155.5000", "155.5000", "155.5000", "174.0000"}));
    testbench::TypeIntoCell(*CurrentGrid(), 10, RFRQ, "150.2");
    EXPECT_EQ(Column(RFRQ, {10, 11, 12, 20}), (Texts{"150.2000", "150.2000", "150.2000", "136.0000"}));
    EXPECT_EQ(Column(TFRQ, {10, 11, 12, 20}), (Texts{"150.2000", "150.2000", "150.2000", "174.0000"}));
}

TEST_F(LinkedFrequency, IsCarriedOnlyFromARowThatIsFlaggedAsPrimary) {
    SetCell(10, MFLG, "60");
    testbench::TypeIntoCell(*CurrentGrid(), 10, RFRQ, "150.2");
    EXPECT_EQ(Column(RFRQ, {10, 11, 12}), (Texts{"150.2000", "136.0000", "136.0000"}));
    SetCell(10, MFLG, "70");
    testbench::TypeIntoCell(*CurrentGrid(), 10, RFRQ, "151.2");
    EXPECT_EQ(Column(RFRQ, {10, 11, 12}), (Texts{"151.2000", "151.2000", "151.2000"}));
}

TEST_F(LinkedFrequency, IsCarriedFromTheRowThatTheNumberOfTheEditedRowNames) {
    SetCell(20, MFLG, "10");
    SetCell(20, MNUM, "010");
    SetCell(10, RFRQ, "140.0000");
    testbench::TypeIntoCell(*CurrentGrid(), 20, RFRQ, "150.2");
    EXPECT_EQ(Column(RFRQ, {20, 11, 12, 30}), (Texts{"150.2000", "140.0000", "140.0000", "136.0000"}));
}
