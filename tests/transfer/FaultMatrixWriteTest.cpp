// Every fault of a digital radio while it is written to.
#include "tests/transfer/FaultMatrix.h"

using namespace testbench;
using namespace transfertest;

namespace {

constexpr const char* ChecksumText = "Checksum Error on channel #";
constexpr const char* RejectedText = "Radio rejected channel #";

const FaultEnding KindsOfWrite[] = {
    {"none", {}, "Complete"},
    // The record is sent once more, and stored twice.
    {"checksum", {"--fault", "checksum@#"}, "Complete"},
    {"checksum-always", {"--fault", "checksum-always@#"}, "Checksum Error", ChecksumText, Left::UpToN},
    {"nak", {"--fault", "nak@#"}, "Complete"},
    {"nak-always", {"--fault", "nak-always@#"}, "Communication Error", RejectedText, Left::BeforeN},
    {"wait", {"--fault", "wait@#"}, "Complete"},
    {.name = "busy", .options = {"--fault", "busy@#"}, .status = "Complete", .once = true, .purged = true},
    {"silence", {"--fault", "silence@#"}, "Timeout", TimeoutText, Left::BeforeN},
    {"no-ack", {"--fault", "no-ack@#"}, "Timeout", TimeoutText, Left::UpToN},
    {"late-ack", {"--fault", "late-ack@#", "--late", "1500"}, "Timeout", TimeoutText, Left::UpToN},
    {"slow-ack", {"--fault", "late-ack@#", "--late", "300"}, "Complete"},
    {"noise", {"--fault", "noise@#"}, "Complete"},
    {"linefeed", {"--fault", "linefeed@#"}, "Complete"},
    {"joined", {"--fault", "joined@#"}, "Complete"},
    {"torn", {"--fault", "torn@#"}, "Complete"},
    // Half an acknowledgement has no good checksum.
    {"cut", {"--fault", "cut@#"}, "Complete"},
    {.name = "unplug",
     .options = {"--fault", "unplug@#"},
     .status = "Timeout",
     .box = TimeoutText,
     .left = Left::UpToN,
     .portRemains = false},
    {"end", {"--fault", "end@#"}, "Communication Error", RejectedText, Left::BeforeN},
};
const FaultEnding DeafToTheNewSpeed[] = {{.name = "deaf",
                                          .options = {"--fault", "deaf@#"},
                                          .status = "Timeout",
                                          .box = TimeoutText,
                                          .left = Left::None,
                                          .once = true}};
const FaultEnding DeafWithoutANewSpeed[] = {
    {.name = "deaf", .options = {"--fault", "deaf@#"}, .status = "Complete", .once = true}};

class FaultsOfAWrite : public FaultMatrix {
protected:
    void Write(int protocol) {
        MakeBystander(protocol);
        ASSERT_FALSE(HasFailure());
        FillPage();
        RadioUnderTest good("KDRV-716B", {"--protocol", std::to_string(protocol)});
        WriteTo(good, {1, 2, 3, 4, 5});
        m_good = good.Records();
        ASSERT_EQ(Numbers(m_good), "1 2 3 4 5");
        const auto cell = [&](const FaultEnding& fault, int n) { WriteWith(fault, protocol, n); };
        ForEachCell(KindsOfWrite, cell);
        if (protocol == 2)
            ForEachCell(DeafToTheNewSpeed, cell);
        else
            ForEachCell(DeafWithoutANewSpeed, cell);
    }

private:
    static void FillPage() {
        for (int row = 1; row <= Memories; ++row)
            FillMemory(row);
        Select({1, 2, 3, 4, 5});
    }

    void WriteWith(const FaultEnding& fault, int protocol, int n) {
        RadioStamp = fault.purged ? KnownStamp : RadiosStamp;
        const std::string before = PageText();
        RadioUnderTest radio("KDRV-716B", OptionsOf(fault, protocol, n), m_bystander + "\n");
        const Result result = Run(radio, WriteChannelsMode);
        const std::string ending = EndingOf(result, radio);
        EXPECT_EQ(ending, ExpectedEnding(fault, n));
        EXPECT_LT(result.took, Patience);
        EXPECT_EQ(PageText(), before);
        const auto held = radio.Records();
        EXPECT_EQ(held, Expected(fault, n)) << Numbers(held);
        ExpectContent(radio);
        Print(fault, protocol, n, ending, "radio " + Numbers(held), result);
    }

    std::map<int, std::string> Expected(const FaultEnding& fault, int n) const {
        std::map<int, std::string> expected;
        for (int number = 1; number <= CountLeft(fault.left, n); ++number)
            expected[number] = m_good.at(number);
        if (!fault.purged)
            expected[Bystander] = m_bystander;
        return expected;
    }

    std::map<int, std::string> m_good; ///< what a radio without faults holds
};

} // namespace

TEST_F(FaultsOfAWrite, OverProtocol0EndAsTheyShould) {
    Write(0);
}

TEST_F(FaultsOfAWrite, OverProtocol1EndAsTheyShould) {
    Write(1);
}

TEST_F(FaultsOfAWrite, OverProtocol2EndAsTheyShould) {
    Write(2);
}
