// Transfers of five memories with a faulty digital radio, and what each leaves.
#pragma once

#include "tests/transfer/RadioUnderTest.h"
#include "tests/transfer/TRecordDriverTest.h"

#include <chrono>
#include <iomanip>
#include <iostream>
#include <map>
#include <string>
#include <vector>

namespace transfertest {

/// Memories that are left, relative to the record N at which the fault is played.
enum class Left { All, UpToN, BeforeN, None };

/// A kind of fault and the required end of its transfer.
struct FaultEnding {
    const char* name;
    std::vector<std::string> options; ///< for zelk-radio; "#" is replaced by N
    const char* status;               ///< text of the status
    const char* box = "";             ///< box that reports it; "#" is replaced by the channel; empty: no box
    Left left = Left::All;
    bool once = false; ///< N has no meaning: the fault is played at the first record only
    bool portRemains = true;
    bool purged = false; ///< of a write: the radio isn't the last one read, so it is purged first
    bool erases = false; ///< of a write: the radio holds memory 3, which is erased
};

/// Keeps the texts of a transfer's boxes and answers each with OK.
class BoxKeeper : public testbench::DialogPolicy {
public:
    int Decide(const testbench::DialogFacts& facts) override {
        if (!m_boxes.empty())
            m_boxes += " + ";
        m_boxes += facts.caption + ": " + facts.message;
        if (facts.style != (wxOK | wxICON_ERROR))
            m_boxes += " (style " + std::to_string(facts.style) + ")";
        return wxID_OK;
    }
    const std::string& Boxes() const { return m_boxes; }

private:
    std::string m_boxes;
};

inline constexpr const char* ChecksumText = "Checksum Error on channel #";
inline constexpr const char* RejectedText = "Radio rejected channel #";

/// A radio that misses the change of speed, and one whose protocol has none.
inline const FaultEnding DeafToTheNewSpeed[] = {{.name = "deaf",
                                                 .options = {"--fault", "deaf@#"},
                                                 .status = "Timeout",
                                                 .box = TimeoutText,
                                                 .left = Left::None,
                                                 .once = true}};
inline const FaultEnding DeafWithoutANewSpeed[] = {
    {.name = "deaf", .options = {"--fault", "deaf@#"}, .status = "Complete", .once = true}};

/// Five memories are transferred. A radio that is written to already holds memory 9.
class FaultMatrix : public TRecordDriverTest {
protected:
    using Order = std::vector<int>;
    /// The page's last row is among them: after its refusal no row follows.
    static inline const Order Memories = {1, 2, 3, 4, 502};
    static constexpr int Bystander = 9;
    static constexpr std::chrono::seconds Patience{20};
    static constexpr const char* RadiosStamp = "20200101000000";

    /// Finds out how a radio of the protocol stores memory 9.
    void MakeBystander(int protocol) {
        RadioUnderTest radio("KDRV-716B", {"--protocol", std::to_string(protocol)});
        MakeMemory(Bystander);
        Select({Bystander});
        WriteTo(radio);
        m_bystander = radio.Records().at(Bystander);
        UsePage(Kdrv716B);
    }

    /// Decimals of a row's frequencies.
    static int Decimals(int row) { return 125 * (row % 100); }

    static void MakeMemory(int row) {
        FillP25Row(row, "A1", "00", wxString::Format("%03d", row));
        SetCell(row, DESC, wxString::Format("HILL %d", row));
        SetCell(row, RFRQ, wxString::Format("154.%04d", Decimals(row)));
        SetCell(row, TFRQ, wxString::Format("159.%04d", Decimals(row)));
    }

    static void FillMemories() {
        CurrentGrid()->ClearSelection();
        for (const int row : Memories) {
            MakeMemory(row);
            CurrentGrid()->SelectRow(row, true);
        }
        SetCell(502, ZONE, "X");
    }

    /// Runs a transfer that must succeed, as a reference.
    void WriteTo(const RadioUnderTest& radio) {
        RadioStamp = RadiosStamp;
        ASSERT_EQ(Run(radio, WriteChannelsMode).status, TransferComplete);
    }

    struct Result {
        int status;
        std::string boxes;
        std::chrono::milliseconds took;
    };

    /// Runs one transfer. Only one that must time out has a short timeout, since a busy machine needs time.
    Result Run(const RadioUnderTest& radio, int mode, bool timesOut = false) {
        TRecordContext context;
        context.ReplyTimeout = timesOut ? 1500 : 10000;
        context.ResultPause = 10;
        const BoxKeeper keeper;
        const auto start = Now();
        const int status = TransferData(context, CurrentGrid(), mode, radio.PortName(), "Test");
        EXPECT_EQ(context.Port, nullptr);
        EXPECT_EQ(context.Progress, nullptr);
        ExpectOver();
        return {status, keeper.Boxes(), std::chrono::duration_cast<std::chrono::milliseconds>(Now() - start)};
    }

    static std::string WithNumber(std::string text, int number) {
        for (size_t at; (at = text.find('#')) != std::string::npos;)
            text.replace(at, 1, std::to_string(number));
        return text;
    }

    static std::vector<std::string> OptionsOf(const FaultEnding& fault, int protocol, int n) {
        std::vector<std::string> options = {"--protocol", std::to_string(protocol)};
        for (const std::string& option : fault.options)
            options.push_back(WithNumber(option, n));
        return options;
    }

    /// Memories that are left, in transfer order.
    static Order MemoriesLeft(Left left, const Order& order, int n) {
        int count = 0;
        switch (left) {
        case Left::All:
            count = static_cast<int>(order.size());
            break;
        case Left::UpToN:
            count = n;
            break;
        case Left::BeforeN:
            count = n - 1;
            break;
        case Left::None:
            break;
        }
        return {order.begin(), order.begin() + count};
    }

    /// End of a transfer without its memories, as one line of the matrix.
    static std::string Ending(const std::string& status, const std::string& boxes, bool endRecord,
                              bool portIsFree) {
        return status + " | " + (boxes.empty() ? "no box" : boxes) + " | " +
               (endRecord ? "end record" : "no end record") + " | " + (portIsFree ? "port free" : "no port");
    }

    /// @param channel that a box names
    static std::string ExpectedEnding(const FaultEnding& fault, int mode, int channel) {
        const std::string box = fault.box, status = fault.status;
        // The program sends the end record when it has written everything, and after a refusal. It doesn't
        // when the radio can't be understood or heard, or when the radio has ended a read.
        const bool endRecord =
            status == "Communication Error" || (status == "Complete" && mode == WriteChannelsMode);
        return Ending(status, box.empty() ? "" : "Error: " + WithNumber(box, channel), endRecord,
                      fault.portRemains);
    }

    static std::string EndingOf(const Result& result, RadioUnderTest& radio) {
        // The radio must receive the program's last bytes before another program talks to it.
        radio.AwaitClosedPort();
        const bool endRecord = radio.Log().find("< T9030000FC") != std::string::npos;
        return Ending(Text(GetStatusText(result.status)), result.boxes, endRecord,
                      PortIsFree(radio.PortName()));
    }

    /// The numbers of a map, such as "1 2 9".
    static std::string Numbers(const std::map<int, std::string>& memories) {
        std::string numbers;
        for (const auto& [number, text] : memories)
            numbers += (numbers.empty() ? "" : " ") + std::to_string(number);
        return numbers.empty() ? "none" : numbers;
    }

    static void Print(const FaultEnding& fault, int protocol, int n, std::string ending,
                      const std::string& left, const Result& result) {
        for (size_t at; (at = ending.find('\n')) != std::string::npos;)
            ending.replace(at, 1, " ");
        std::cout << std::left << "  " << std::setw(17) << fault.name << "protocol " << protocol
                  << "  record " << n << "  " << ending << " | " << left << " | " << result.took.count()
                  << " ms\n";
    }

    static bool TimesOut(const FaultEnding& fault) { return std::string(fault.status) == "Timeout"; }

    /// Expects that the radio complained of nothing, whatever fault it plays.
    static void ExpectContent(RadioUnderTest& radio) {
        EXPECT_EQ(radio.SwitchOff(), 0) << radio.Log();
        EXPECT_EQ(radio.Complaints(), "");
    }

    /// Runs all kinds of a direction over one protocol, each at the given records.
    template <size_t count, class Check>
    static void ForEachCell(const FaultEnding (&kinds)[count], const std::vector<int>& places, Check check) {
        int cells = 0;
        for (const FaultEnding& fault : kinds)
            for (const int n : places) {
                if (fault.once && n != places.front())
                    continue;
                SCOPED_TRACE(std::string(fault.name) + " at record " + std::to_string(n));
                check(fault, n);
                ++cells;
            }
        std::cout << "[  faults  ] " << cells << " cells\n";
    }

    std::string m_bystander; ///< the record of memory 9, with its layout
};

} // namespace transfertest
