// All faults of a digital radio during a read.
#include "tests/transfer/FaultMatrix.h"

using namespace testbench;
using namespace transfertest;

namespace {

const FaultEnding KindsOfRead[] = {
    {"none", {}, "Complete"},
    // The program asks for the record again.
    {"checksum", {"--fault", "checksum@#"}, "Complete"},
    {"checksum-always", {"--fault", "checksum-always@#"}, "Checksum Error", ChecksumText, Left::BeforeN},
    {"nak", {"--fault", "nak@#"}, "Complete"},
    {"nak-always", {"--fault", "nak-always@#"}, "Communication Error", RejectedText, Left::BeforeN},
    {"wait", {"--fault", "wait@#"}, "Complete"},
    // Nothing is erased and the radio acknowledges nothing.
    {.name = "busy", .options = {"--fault", "busy@#"}, .status = "Complete", .once = true},
    {"silence", {"--fault", "silence@#"}, "Timeout", TimeoutText, Left::BeforeN},
    {"no-ack", {"--fault", "no-ack@#"}, "Complete"},
    {"late-ack", {"--fault", "late-ack@#", "--late", "4000"}, "Complete"},
    {"noise", {"--fault", "noise@#"}, "Complete"},
    {"linefeed", {"--fault", "linefeed@#"}, "Complete"},
    {"joined", {"--fault", "joined@#"}, "Complete"},
    {"torn", {"--fault", "torn@#"}, "Complete"},
    // Half a record has no valid checksum.
    {"cut", {"--fault", "cut@#"}, "Complete"},
    {.name = "unplug",
     .options = {"--fault", "unplug@#"},
     .status = "Timeout",
     .box = TimeoutText,
     .left = Left::BeforeN,
     .portRemains = false},
    // An end record ends a read, whatever preceded it.
    {"end", {"--fault", "end@#"}, "Complete", "", Left::BeforeN},
};

class FaultsOfARead : public FaultMatrix {
protected:
    void Read(int protocol) {
        FillRadio(protocol);
        ASSERT_FALSE(HasFailure());
        const auto cell = [&](const FaultEnding& fault, int n) { ReadWith(fault, protocol, n); };
        ForEachCell(KindsOfRead, {1, 3, 5}, cell);
        if (protocol == 2)
            ForEachCell(DeafToTheNewSpeed, {1}, cell);
        else
            ForEachCell(DeafWithoutANewSpeed, {1}, cell);
    }

private:
    /// Finds out what a radio holds after a write without faults, and how its memories are read.
    void FillRadio(int protocol) {
        const std::vector<std::string> options = {"--protocol", std::to_string(protocol)};
        FillMemories();
        RadioUnderTest good("KDRV-716B", options);
        WriteTo(good);
        m_held = good.Records();
        ASSERT_EQ(m_held.size(), Memories.size());
        for (const auto& [number, record] : m_held)
            m_content += record + "\n";
        EmptyPage();
        const RadioUnderTest filled("KDRV-716B", options, m_content);
        ASSERT_EQ(Run(filled, ReadChannelsMode).status, TransferComplete);
        m_good = Rows();
        ASSERT_EQ(Numbers(m_good), "1 2 3 4 502");
        for (const int row : Memories) {
            EXPECT_EQ(CellText(row, DESC), "HILL " + std::to_string(row));
            EXPECT_TRUE(Cell(row, RFRQ).starts_with(wxString::Format("154.%04d", Decimals(row))))
                << CellText(row, RFRQ);
        }
    }

    void ReadWith(const FaultEnding& fault, int protocol, int n) {
        EmptyPage();
        RadioUnderTest radio("KDRV-716B", OptionsOf(fault, protocol, n), m_content);
        const Result result = Run(radio, ReadChannelsMode, TimesOut(fault));
        const std::string ending = EndingOf(result, radio);
        // A read counts its requests from 0: its first record is channel 0.
        EXPECT_EQ(ending, ExpectedEnding(fault, ReadChannelsMode, n - 1));
        EXPECT_LT(result.took, Patience);
        std::map<int, std::string> expected;
        for (const int row : MemoriesLeft(fault.left, Memories, n))
            expected[row] = m_good.at(row);
        EXPECT_EQ(Rows(), expected) << Numbers(Rows());
        EXPECT_EQ(radio.Records(), m_held);
        ExpectContent(radio);
        Print(fault, protocol, n, ending, "page " + Numbers(Rows()), result);
    }

    static void EmptyPage() {
        wxGrid* const grid = CurrentGrid();
        for (int row = 1; row < grid->GetNumberRows(); ++row)
            if (RowHasData(row))
                ClearRowData(row, true);
    }

    /// The rows with any text, with all their cells.
    static std::map<int, std::string> Rows() {
        std::map<int, std::string> rows;
        for (int row = 1; row < CurrentGrid()->GetNumberRows(); ++row)
            if (RowHasData(row))
                for (const wxString& text : GetRowValues(CurrentPage, row))
                    rows[row] += Text(text) + "|";
        return rows;
    }

    std::string m_content;             ///< memory file of a radio with the five memories
    std::map<int, std::string> m_held; ///< its records
    std::map<int, std::string> m_good; ///< rows read from it without faults
};

} // namespace

TEST_F(FaultsOfARead, OverProtocol0EndAsTheyShould) {
    Read(0);
}

TEST_F(FaultsOfARead, OverProtocol1EndAsTheyShould) {
    Read(1);
}

TEST_F(FaultsOfARead, OverProtocol2EndAsTheyShould) {
    Read(2);
}
