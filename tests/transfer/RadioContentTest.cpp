// Content of a digital radio after several writes.
#include "tests/transfer/DigitalRadioTest.h"

using namespace testbench;
using namespace transfertest;

namespace {

class RadioContent : public DigitalRadioTest {
protected:
    /// Sets the state of a program that has read nothing since its start.
    static void ForgetRadio() { RadioStamp = ""; }

    static void FillMemories(int first, int last) {
        for (int row = first; row <= last; ++row)
            FillP25Row(row);
    }

    /// Makes a new shadow of a row, as the command does.
    static void MakeShadow(int shadow, const wxString& primary) {
        const int row = wxAtoi(primary);
        FillP25Row(shadow, "A0", "01", primary);
        SetCell(shadow, SHAD, "S-" + primary);
        SetCell(row, MFLG, "10");
        SetCell(row, SHAD, "P-1");
        SetCell(row, SHD0, wxString::Format("%03d", shadow));
    }

    /// Receive frequency of a record of the latest layout, in Hz.
    static long FrequencyOf(const std::string& record) {
        return std::stol(record.substr(2 + 44, 8), nullptr, 16);
    }
};

constexpr const char* RejectedText = "Radio rejected channel 2";

} // namespace

TEST_F(RadioContent, StaysWhenACorrectedRowIsSentAgainThoughNothingWasReadByDeparture) {
    ForgetRadio();
    FillMemories(1, 5);
    RadioUnderTest radio("KDRV-716B");
    Select({1, 2, 3, 4, 5});
    Send(radio, Complete);
    SetCell(3, RFRQ, "155.5000");
    Select({3});
    Send(radio, Complete);
    EXPECT_EQ(CountInLog(radio, PurgeMessage), 1u) << "the first write alone purges";
    ExpectContent(radio);
    EXPECT_EQ(Addresses(radio), (std::vector<int>{1, 2, 3, 4, 5}));
    EXPECT_EQ(FrequencyOf(radio.Records().at(3)), 155500000);
}

TEST_F(RadioContent, OfAWriteGoesOutAgainBehindThePurgeForAShadowByDeparture) {
    RadioUnderTest radio("KDRV-716B");
    Share(radio); // memories 1 to 3, read
    FillP25Row(4);
    Select({4});
    Send(radio, Complete);
    MakeShadow(20, "002");
    Select({20});
    Send(radio, Complete);
    EXPECT_EQ(CountInLog(radio, PurgeMessage), 1u);
    ExpectContent(radio);
    EXPECT_EQ(Addresses(radio), (std::vector<int>{1, 2, 3, 4, 20}));
}

TEST_F(RadioContent, IsNotPurgedForAPlainRowAfterAShadowWasSentByDeparture) {
    RadioUnderTest radio("KDRV-716B");
    Share(radio);
    MakeShadow(20, "002");
    Select({20});
    Send(radio, Complete);
    ASSERT_EQ(CountInLog(radio, PurgeMessage), 1u);
    const size_t before = CountInLog(radio, "< T143");
    FillP25Row(4);
    Select({4});
    Send(radio, Complete);
    EXPECT_EQ(CountInLog(radio, PurgeMessage), 1u) << "the plain row purged it again";
    EXPECT_EQ(CountInLog(radio, "< T143"), before + 1) << "more than the plain row was sent";
    ExpectContent(radio);
    EXPECT_EQ(Addresses(radio), (std::vector<int>{1, 2, 3, 4, 20}));
}

TEST_F(RadioContent, IsRestoredAfterAWriteThatFailedBehindItsPurgeByDeparture) {
    RadioUnderTest radio("KDRV-716B", {"--fault", "nak-always@2/3"});
    Share(radio); // the radio's first two transfers
    MakeShadow(20, "002");
    Select({20});
    Send(radio, {"Communication Error", RejectedText});
    ASSERT_EQ(CountInLog(radio, PurgeMessage), 1u);
    FillP25Row(9);
    Select({9});
    SendAsked(radio, Complete);
    EXPECT_EQ(CountInLog(radio, PurgeMessage), 2u);
    ExpectContent(radio);
    EXPECT_EQ(Addresses(radio), (std::vector<int>{1, 2, 3, 9}));
}

TEST_F(RadioContent, OfARadioThatWasNotReadIsErasedOnlyAfterAQuestionByDeparture) {
    RadioUnderTest first("KDRV-716B");
    Share(first);
    const std::string stamp = Text(RadioStamp);
    RadioUnderTest other("KDRV-716B", {"--stamp", "19990101000000"}, first.Records().at(3) + "\n");
    FillP25Row(4);
    Select({4});
    SendAsked(other, {"Cancelled by User"}, wxID_CANCEL);
    EXPECT_EQ(CountInLog(other, "< T204000025"), 0u) << "no data were announced";
    EXPECT_EQ(CountInLog(other, PurgeMessage), 0u);
    EXPECT_EQ(CountInLog(other, EndRecordLine), 1u);
    EXPECT_EQ(Text(RadioStamp), stamp) << "the first radio is known as before";
    EXPECT_EQ(CellText(4, TFLG), "A1");
    ExpectContent(other);
    EXPECT_EQ(Addresses(other), (std::vector<int>{3}));
}

TEST_F(RadioContent, IsErasedWithoutAQuestionWhenTheSelectionLeavesOutNoRowWithData) {
    ForgetRadio();
    FillMemories(1, 3);
    FillP25Row(502);
    SetCell(502, ZONE, "X");
    RadioUnderTest radio("KDRV-716B");
    Select({1, 2, 3, 4, 502});
    Send(radio, Complete);
    EXPECT_EQ(CountInLog(radio, PurgeMessage), 1u);
    ExpectContent(radio);
    EXPECT_EQ(Addresses(radio), (std::vector<int>{1, 2, 3, 502}));
}

TEST_F(RadioContent, IsAskedAboutWhenOnlyAGuardIsLeftOut) {
    ForgetRadio();
    FillP25Row(1);
    FillP25Row(502);
    RadioUnderTest radio("KDRV-716B");
    Select({1});
    SendAsked(radio, Complete);
    EXPECT_EQ(Addresses(radio), (std::vector<int>{1}));
}

TEST_F(RadioContent, IsNotAskedAboutForTheDefaultRow) {
    ForgetRadio();
    FillP25Row(1);
    RadioUnderTest radio("KDRV-716B");
    Select({1}); // not row 0, which always has data
    Send(radio, Complete);
    EXPECT_EQ(Addresses(radio), (std::vector<int>{1}));
}

TEST_F(RadioContent, OfTwoRadiosFollowsThePageByDeparture) {
    ForgetRadio();
    RadioUnderTest first("KDRV-716B");
    RadioUnderTest other("KDRV-716B", {"--stamp", "19990101000000"});
    FillMemories(1, 3);
    Select({1, 2, 3});
    Send(first, Complete);
    FillP25Row(4);
    Select({4});
    SendAsked(other, Complete);
    FillP25Row(5);
    Select({5});
    SendAsked(first, Complete);
    EXPECT_EQ(Addresses(first), (std::vector<int>{1, 2, 3, 4, 5}));
    EXPECT_EQ(Addresses(other), (std::vector<int>{1, 2, 3, 4}));
}

TEST_F(RadioContent, StaysKnownWhenTheQuestionOfModesIsAnsweredWithNo) {
    OpModes[0] = 0;
    RadioUnderTest radio("KDRV-716B", {"--modes", "00"});
    FillP25Row(1);
    Select({1});
    Send(radio, Complete, "    Analog Narrowband\n", wxID_NO);
    EXPECT_EQ(Text(RadioStamp), RadiosStamp);
    EXPECT_EQ(CellText(1, TFLG), "A1");
}

TEST_F(RadioContent, OfAnErasedRowIsNotSentAgain) {
    RadioUnderTest radio("KDRV-716B");
    Share(radio);
    SetCell(2, TFLG, "C2");
    Select({2});
    Send(radio, Complete);
    EXPECT_EQ(CellText(2, TFLG), "83") << "the radio holds it no longer";
    MakeShadow(20, "001");
    Select({20});
    Send(radio, Complete);
    EXPECT_EQ(Addresses(radio), (std::vector<int>{1, 3, 20}));
}

TEST_F(RadioContent, ThatThePageHoldsNoLongerIsErasedOnlyAfterAQuestionByDeparture) {
    RadioUnderTest radio("KDRV-716B");
    Share(radio); // memories 1 to 3, read
    ClearRowData(2, true);
    MakeShadow(20, "001");
    Select({20});
    SendAsked(radio, {"Cancelled by User"}, wxID_CANCEL, RadioHoldsMore);
    EXPECT_EQ(CountInLog(radio, PurgeMessage), 0u) << "Cancel leaves the radio as it is";
    SendAsked(radio, Complete, wxID_OK, RadioHoldsMore);
    EXPECT_EQ(CountInLog(radio, PurgeMessage), 1u);
    FillP25Row(4);
    Select({4});
    Send(radio, Complete);
    EXPECT_EQ(CountInLog(radio, PurgeMessage), 1u) << "a plain row purges nothing";
    ExpectContent(radio);
    EXPECT_EQ(Addresses(radio), (std::vector<int>{1, 3, 4, 20})) << "page and radio agree again";
}

TEST_F(RadioContent, ThatAReadBrokeOffBeforeIsErasedOnlyAfterAQuestionByDeparture) {
    RadioUnderTest radio("KDRV-716B", {"--fault", "checksum-always@2/3"});
    Share(radio); // the radio's first two transfers
    Read(radio, {"Checksum Error", "Checksum Error on channel 1"});
    ASSERT_LT(FilledRows().size(), 3u);
    MakeShadow(20, "001");
    Select({20});
    SendAsked(radio, {"Cancelled by User"}, wxID_CANCEL, RadioHoldsMore);
    FillP25Row(4);
    Select({4});
    Send(radio, Complete);
    EXPECT_EQ(CountInLog(radio, PurgeMessage), 0u);
    radio.SwitchOff();
    EXPECT_EQ(Addresses(radio), (std::vector<int>{1, 2, 3, 4})) << "a plain row purges nothing";
}
