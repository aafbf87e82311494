// All faults of a digital radio during a write.
#include "tests/transfer/FaultMatrix.h"

#include <algorithm>

using namespace testbench;
using namespace transfertest;

namespace {

const FaultEnding KindsOfWrite[] = {
    {"none", {}, "Complete"},
    // The program sends the record again, and the radio stores it twice.
    {"checksum", {"--fault", "checksum@#"}, "Complete"},
    {"checksum-always", {"--fault", "checksum-always@#"}, "Checksum Error", ChecksumText, Left::UpToN},
    {"nak", {"--fault", "nak@#"}, "Complete"},
    {"nak-always", {"--fault", "nak-always@#"}, "Communication Error", RejectedText, Left::BeforeN},
    {"wait", {"--fault", "wait@#"}, "Complete"},
    {.name = "busy", .options = {"--fault", "busy@#"}, .status = "Complete", .once = true, .purged = true},
    {.name = "busy erasing",
     .options = {"--fault", "busy@#"},
     .status = "Complete",
     .once = true,
     .erases = true},
    {"silence", {"--fault", "silence@#"}, "Timeout", TimeoutText, Left::BeforeN},
    {"no-ack", {"--fault", "no-ack@#"}, "Timeout", TimeoutText, Left::UpToN},
    {"late-ack", {"--fault", "late-ack@#", "--late", "4000"}, "Timeout", TimeoutText, Left::UpToN},
    {"slow-ack", {"--fault", "late-ack@#", "--late", "300"}, "Complete"},
    {"noise", {"--fault", "noise@#"}, "Complete"},
    {"linefeed", {"--fault", "linefeed@#"}, "Complete"},
    {"joined", {"--fault", "joined@#"}, "Complete"},
    {"torn", {"--fault", "torn@#"}, "Complete"},
    // Half an acknowledgement has no valid checksum.
    {"cut", {"--fault", "cut@#"}, "Complete"},
    {.name = "unplug",
     .options = {"--fault", "unplug@#"},
     .status = "Timeout",
     .box = TimeoutText,
     .left = Left::UpToN,
     .portRemains = false},
    {"end", {"--fault", "end@#"}, "Communication Error", RejectedText, Left::BeforeN},
};

class FaultsOfAWrite : public FaultMatrix {
protected:
    void Write(int protocol) {
        Prepare(protocol, Memories);
        ASSERT_FALSE(HasFailure());
        const auto cell = [&](const FaultEnding& fault, int n) { WriteWith(fault, protocol, n); };
        ForEachCell(KindsOfWrite, {1, 3, 5}, cell);
        if (protocol == 2)
            ForEachCell(DeafToTheNewSpeed, {1}, cell);
        else
            ForEachCell(DeafWithoutANewSpeed, {1}, cell);
    }

    /// Makes the last record that of a shadow, so the radio is purged first.
    void WriteShadow(int protocol) {
        Prepare(protocol, {1, 2, 4, 502, 3});
        ASSERT_FALSE(HasFailure());
        ForEachCell(KindsOfWrite, {5},
                    [&](const FaultEnding& fault, int n) { WriteWith(fault, protocol, n); });
    }

private:
    /// Fills the page and finds out what a radio then holds after a write without faults.
    void Prepare(int protocol, const Order& order) {
        MakeBystander(protocol);
        m_order = order;
        m_shadow = order.back() == 3;
        FillMemories();
        if (m_shadow) {
            SetCell(2, MFLG, "10");
            SetCell(2, SHD0, "003");
            SetCell(3, MFLG, "01");
            SetCell(3, PRIM, "002");
            SetCell(3, ZONE, "");
        }
        RadioUnderTest good("KDRV-716B", {"--protocol", std::to_string(protocol)});
        WriteTo(good);
        m_good.clear();
        for (const auto& [address, record] : good.Records())
            m_good[address > 230 ? 502 : address] = {address, record};
        ASSERT_EQ(m_good.size(), order.size());
    }

    void WriteWith(const FaultEnding& fault, int protocol, int n) {
        const bool erases = fault.erases && !m_shadow;
        RadioStamp = fault.purged ? KnownStamp : RadiosStamp;
        for (const int row : m_order)
            SetCell(row, TFLG, erases && row == 3 ? "C3" : "A1");
        const std::string before = PageText();
        RadioUnderTest radio("KDRV-716B", OptionsOf(fault, protocol, n),
                             m_bystander + "\n" + (erases ? m_good.at(3).second + "\n" : ""));
        const Result result = Run(radio, WriteChannelsMode, TimesOut(fault));
        const std::string ending = EndingOf(result, radio);
        const int channel = m_order[static_cast<size_t>(n - 1)];
        EXPECT_EQ(ending, ExpectedEnding(fault, WriteChannelsMode, channel));
        EXPECT_LT(result.took, Patience);
        ExpectAcknowledged(fault, n, erases);
        EXPECT_EQ(PageText(), before) << "more than the marks of acknowledged rows";
        const auto held = radio.Records();
        EXPECT_EQ(held, Expected(fault, n, erases)) << Numbers(held);
        ExpectContent(radio);
        Print(fault, protocol, n, ending, "radio " + Numbers(held), result);
    }

    /// Checks that exactly the rows whose acknowledgement arrived have its mark, and removes the mark.
    void ExpectAcknowledged(const FaultEnding& fault, int n, bool erases) const {
        const bool complete = std::string(fault.status) == "Complete";
        const Order taken = MemoriesLeft(complete ? Left::All : Left::BeforeN, m_order, n);
        for (const int row : m_order) {
            const std::string before = erases && row == 3 ? "C3" : "A1";
            const std::string after = erases && row == 3 ? "83" : "E1";
            const bool isTaken = std::find(taken.begin(), taken.end(), row) != taken.end();
            EXPECT_EQ(CellText(row, TFLG), isTaken ? after : before) << "row " << row;
            SetCell(row, TFLG, before);
        }
    }

    std::map<int, std::string> Expected(const FaultEnding& fault, int n, bool erases) const {
        std::map<int, std::string> expected;
        for (const int row : MemoriesLeft(fault.left, m_order, n))
            if (!erases || row != 3)
                expected.insert(m_good.at(row));
        if (!fault.purged && !m_shadow)
            expected[Bystander] = m_bystander;
        return expected;
    }

    Order m_order;         ///< rows in sending order
    bool m_shadow = false; ///< the last of them is a shadow
    /// Content of a radio after a write without faults: by row, the record with its address.
    std::map<int, std::pair<int, std::string>> m_good;
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

TEST_F(FaultsOfAWrite, AtAShadowEndAsTheyShould) {
    WriteShadow(2);
}
