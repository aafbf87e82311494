// Random work with two radios: a memory that the program wrote stays in its radio while the page shows it.
#include "catalogue/TextNumbers.h"
#include "editing/PageReset.h"
#include "editing/ZelkEdit.h"
#include "editing/ZelkEditors.h"
#include "frame/SelectionDialogs.h"
#include "tests/transfer/BenchRadio.h"
#include "tests/transfer/TRecordDriverTest.h"
#include "transfer/RadioIdentity.h"
#include "transfer/TRecordDialogue.h"

#include <wx/choice.h>
#include <wx/textctrl.h>

#include <array>
#include <chrono>
#include <iostream>
#include <map>
#include <random>
#include <set>
#include <utility>
#include <vector>

using namespace testbench;
using namespace transfertest;

namespace {

/// Frequencies of a memory in Hz, receive and transmit. No two memories of a run start with the same ones.
using Channel = std::pair<long, long>;

/// One radio and its required content: by number, the channels that it may have been given for that memory.
struct KnownRadio {
    KnownRadio(const char* model, const std::string& stamp) : radio(model, stamp) {}

    BenchRadio radio;
    std::map<int, std::set<Channel>> given;
    /// A write failed after its purge. The next complete write must restore what is missing.
    bool owes = false;
};

/// Counts of the events that the test is about.
struct Tally {
    int steps = 0, writes = 0, reads = 0, purges = 0, questions = 0, refusals = 0, failures = 0, shadows = 0;
    long memoriesChecked = 0;
};

class RadioContentProperty : public TRecordDriverTest {
protected:
    static constexpr int Steps = 500;

    void SetUp() override {
        TRecordDriverTest::SetUp();
        UsePage(Kdrv716);
        RadioStamp = "";
    }

    /// Runs once. The same seed repeats the run.
    void Run(unsigned seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        m_random.seed(seed);
        const auto start = std::chrono::steady_clock::now();
        for (int step = 1; step <= Steps && !HasFailure(); ++step) {
            m_what.clear();
            TakeStep();
            ++m_tally.steps;
            ExpectContent();
            if (HasFailure())
                ADD_FAILURE() << "seed " << seed << ", step " << step << ": " << m_what;
        }
        for (KnownRadio& known : m_radios)
            EXPECT_EQ(known.radio.Violations(), 0) << known.radio.Complaints();
        Report(seed, std::chrono::steady_clock::now() - start);
        // Each of these events must occur in a run.
        for (const int count : {m_tally.reads, m_tally.purges, m_tally.questions, m_tally.refusals,
                                m_tally.failures, m_tally.shadows})
            EXPECT_GT(count, 0);
        EXPECT_GT(m_tally.memoriesChecked, Steps);
    }

private:
    // ---- Chance ----

    int Below(int limit) { return static_cast<int>(m_random() % static_cast<unsigned>(limit)); }
    bool Once(int outOf) { return Below(outOf) == 0; }
    KnownRadio& AnyRadio() { return m_radios[static_cast<size_t>(Below(2))]; }

    /// Returns one of a few rows, so that rows meet often. The guards are among them.
    int AnyRow() {
        constexpr int rows[] = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 229, 230, 231, 232};
        return rows[Below(std::size(rows))];
    }

    void TakeStep() {
        const int die = Below(100);
        if (die < 20)
            Fill(AnyRow());
        else if (die < 32)
            Retune(AnyRow());
        else if (die < 44)
            CreateShadow(AnyRow());
        else if (die < 52)
            Clear(AnyRow());
        else if (die < 55)
            MoveRows(2 + Below(8));
        else if (die < 57)
            ChooseSameTarget();
        else if (die < 60)
            CheckPage();
        else if (die < 64)
            Read(AnyRadio());
        else
            Write(AnyRadio());
    }

    // ---- Work on the page ----

    wxString NewFrequency() {
        constexpr int channels = 3000; // of 12.5 kHz, from 136 MHz on
        const int number = m_made++ % channels;
        const int steps = number * 125;
        return wxString::Format("%03d.%04d", 136 + steps / 10000, steps % 10000);
    }

    void Fill(int row) {
        m_what = "fill " + std::to_string(row);
        if (RowHasData(row))
            return;
        FillP25Row(row, "A0", "00", wxString::Format("%03d", row));
        Tune(row);
        ASSERT_TRUE(RowIsComplete(row));
    }
    void Tune(int row) {
        SetCell(row, RFRQ, NewFrequency());
        SetCell(row, TFRQ, wxString::Format("1%d%d.0000", 4 + Below(3), Below(10)));
    }

    /// The user corrects a memory. It stays the same memory, so until it is sent either channel will do in
    /// the radio.
    void Retune(int row) {
        m_what = "retune " + std::to_string(row);
        if (!RowHasData(row))
            return;
        const Channel before = ShownChannel(row);
        Tune(row);
        for (KnownRadio& known : m_radios)
            if (const auto found = known.given.find(row);
                found != known.given.end() && found->second.count(before))
                found->second.insert(ShownChannel(row));
    }

    void CreateShadow(int primary) {
        int shadow = AnyRow() % 200;
        while (RowHasData(shadow))
            ++shadow;
        m_what = "shadow " + std::to_string(shadow) + " of " + std::to_string(primary);
        const bool mayHaveOne = primary < 231 && RowIsComplete(primary) && Cell(primary, SHD6) == "0" &&
                                !IsShadow(CurrentGrid(), primary);
        if (!mayHaveOne)
            return;
        DialogScript dialogs;
        dialogs.Expect(DialogKind::Other, AnyText()).Set([shadow](wxDialog* dialog) {
            for (wxWindow* child : dialog->GetChildren())
                if (auto* control = dynamic_cast<wxTextCtrl*>(child))
                    control->SetValue(std::to_string(shadow));
            dialog->TransferDataFromWindow();
        });
        ContextRow = primary;
        wxCommandEvent event;
        MainFrame->OnCreateShadow(event);
        ++m_tally.shadows;
    }

    void Clear(int row) {
        m_what = "clear " + std::to_string(row);
        Select({row});
        DialogScript dialogs;
        dialogs.ExpectMessage("Clear rows in Selection?", AnyText());
        wxCommandEvent event;
        MainFrame->OnClearRow(event);
    }

    void MoveRows(int row) {
        const bool insert = Once(2);
        m_what = (insert ? "insert above " : "delete ") + std::to_string(row);
        Select({row});
        ContextRow = row;
        DialogScript dialogs;
        dialogs.ExpectMessage(insert ? "Insert row above Selected row?" : "Delete Selection?", AnyText());
        wxCommandEvent event;
        if (insert)
            MainFrame->OnInsertRow(event);
        else
            MainFrame->OnDeleteRow(event);
        // As the user does after a deletion, because a record contains the memory's number.
        for (int each = 1; each < CurrentGrid()->GetNumberRows(); ++each)
            if (RowHasData(each))
                SetCell(each, MNUM, wxString::Format("%03d", each));
    }

    void ChooseSameTarget() {
        m_what = "same target";
        DialogScript dialogs;
        dialogs.ExpectMessage("Change Target?", AnyText());
        dialogs.Expect(DialogKind::Other, "<-- Select Target Radio -->").Set([](wxDialog*) {
            RadioChoice->SetSelection(Kdrv716);
        });
        wxCommandEvent event;
        MainFrame->OnSetTarget(event);
        // Rows that the command fills are new memories, and they look the same each time.
        for (const int row : {1, GD1, GD2})
            if (Cell(row, RFRQ) == Cell(0, RFRQ))
                Tune(row);
    }

    void CheckPage() {
        m_what = "check";
        ::CheckPage();
    }

    // ---- Transfers ----

    /// Answers the question before a purge. The only other box allowed is "Error", which gets OK.
    class Person : public DialogPolicy {
    public:
        explicit Person(bool agrees) : m_agrees(agrees) {}
        int Decide(const DialogFacts& facts) override {
            if (facts.caption != "Purge radio?") {
                EXPECT_EQ(facts.caption, "Error") << facts.message;
                return wxID_OK;
            }
            ++questions;
            return m_agrees ? wxID_OK : wxID_CANCEL;
        }
        int questions = 0;

    private:
        bool m_agrees;
    };

    struct Ending {
        int status;
        std::set<int> sent;
        int questions;
    };

    Ending Transfer(KnownRadio& known, int mode, bool agrees) {
        OpModes[0] = AllModes;
        TRecordContext context;
        context.ReplyTimeout = 20000;
        context.ResultPause = context.ShadowPause = 0;
        Person person(agrees);
        const int status = TransferData(context, CurrentGrid(), mode, known.radio.PortName(), "Test");
        known.radio.EndVisit();
        return {status, context.RowsSent, person.questions};
    }

    void SelectSome() {
        CurrentGrid()->ClearSelection();
        if (Once(4))
            return CurrentGrid()->SelectAll();
        for (int n = 1 + Below(4); n > 0; --n)
            CurrentGrid()->SelectRow(AnyRow(), true);
        CurrentGrid()->DeselectRow(0);
    }

    bool LeavesOutRows() const {
        for (int row = 1; row < CurrentGrid()->GetNumberRows(); ++row)
            if (RowHasData(row) && !CurrentGrid()->IsInSelection(row, 0))
                return true;
        return false;
    }

    void PlanTrouble(KnownRadio& known) {
        if (!Once(6))
            return known.radio.Expect(BenchRadio::Fault::None, 0);
        const int record = 1 + Below(5);
        if (Once(2))
            known.radio.Expect(BenchRadio::Fault::End, record);
        else
            known.radio.Expect(BenchRadio::Fault::Silence, record, PressCancel);
    }

    void Write(KnownRadio& known) {
        ++m_tally.writes;
        SelectSome();
        PlanTrouble(known);
        const bool agrees = !Once(4);
        const bool isKnown = Text(RadioStamp) == known.radio.Stamp();
        const bool asks = !isKnown && LeavesOutRows();
        const bool needsPurge = !isKnown || ShadowIsSelected();
        const auto before = known.radio.Memories();
        const std::set<int> erased = ErasedRows();
        const int purges = known.radio.Purges();
        const Ending ending = Transfer(known, WriteChannelsMode, agrees);
        m_what = "write to radio " + std::to_string(&known - m_radios.data()) + ", status " +
                 std::to_string(ending.status) + (agrees ? "" : ", purge refused");
        m_tally.questions += ending.questions;
        m_tally.purges += known.radio.Purges() - purges;
        const bool gotThatFar =
            ending.status != TransferNoDataSelected && ending.status != TransferInvalidTransmitData;
        // The known radio may hold more than the page. ExpectNothingLostUnasked checks for a missing
        // question.
        const bool mayAsk = isKnown && ShadowIsSelected();
        if (mayAsk) {
            EXPECT_LE(ending.questions, 1);
        } else {
            EXPECT_EQ(ending.questions, asks && gotThatFar ? 1 : 0);
        }
        if (ending.questions > 0 && !agrees) {
            ++m_tally.refusals;
            EXPECT_EQ(known.radio.Memories(), before) << "Cancel must leave the radio as it is";
        }
        const bool purged = known.radio.Purges() > purges;
        EXPECT_EQ(purged, needsPurge && gotThatFar && (agrees || ending.questions == 0));
        if (isKnown && purged && ending.questions == 0 && ending.status == TransferComplete)
            ExpectNothingLostUnasked(known, before, erased);
        if (ending.status == TransferComplete) {
            EXPECT_EQ(Text(RadioStamp), known.radio.Stamp()) << "the next write would purge again";
        } else if (purged) {
            EXPECT_EQ(Text(RadioStamp), "") << "the next write would not purge again";
        }
        TakeOver(known, ending, purged);
    }

    /// Rows whose memory the user wants to erase in the radio.
    std::set<int> ErasedRows() const {
        std::set<int> rows;
        for (int row = 1; row < CurrentGrid()->GetNumberRows(); ++row)
            if (TransferFlags(CurrentGrid(), row) & EraseFlag)
                rows.insert(row);
        return rows;
    }

    /// Without a question to the user, the known radio still holds all its memories except erased ones.
    void ExpectNothingLostUnasked(const KnownRadio& known, const Simulator::DigitalMemoryList& before,
                                  const std::set<int>& erased) {
        const auto held = known.radio.Memories();
        for (const auto& [number, memory] : before)
            if (number > 0 && !known.owes && !erased.count(number)) {
                EXPECT_TRUE(held.count(number)) << "memory " << number << " was purged without a question";
            }
    }

    bool ShadowIsSelected() const {
        for (int row = 1; row < CurrentGrid()->GetNumberRows(); ++row)
            if (RowHasData(row) && CurrentGrid()->IsInSelection(row, 0) && IsShadow(CurrentGrid(), row))
                return true;
        return false;
    }

    /// Updates what the radio must hold from now on.
    void TakeOver(KnownRadio& known, const Ending& ending, bool purged) {
        for (const int row : ending.sent)
            known.given[row] = {ShownChannel(row)};
        m_tally.failures += ending.status != TransferComplete && purged;
        if (ending.status != TransferComplete) {
            known.owes = known.owes || purged;
            return;
        }
        known.owes = false;
        for (const int row : SelectedCompleteRows())
            EXPECT_TRUE(ending.sent.count(row)) << "row " << row << " was not sent";
    }

    std::vector<int> SelectedCompleteRows() const {
        std::vector<int> rows;
        for (int row = 1; row < CurrentGrid()->GetNumberRows(); ++row)
            if (RowIsComplete(row) && CurrentGrid()->IsInSelection(row, 0))
                rows.push_back(row);
        return rows;
    }

    /// Reads as the command does.
    void Read(KnownRadio& known) {
        ++m_tally.reads;
        ResetPage(CurrentPage);
        EmptyDefaultMemories(CurrentPage);
        known.radio.Expect(BenchRadio::Fault::None, 0);
        const Ending ending = Transfer(known, ReadChannelsMode, true);
        SetPageEditors(CurrentPage);
        m_what = "read radio " + std::to_string(&known - m_radios.data());
        EXPECT_EQ(ending.status, TransferComplete);
        // Two radios read within the same second would get the same stamp. No user reads that fast.
        const std::string stamp = Text(wxString::Format("2031%010d", ++m_reads));
        known.radio.SetStamp(stamp);
        RadioStamp = HeldByRadio.stamp = stamp;
        for (KnownRadio& each : m_radios)
            each.given.clear();
        known.owes = false;
        for (const auto& [number, memory] : known.radio.Memories()) {
            EXPECT_EQ(ShownChannel(number), Channel(memory.rxFrequency, memory.txFrequency)) << number;
            if (number > 0) // the default row is no memory: a purge erases it
                known.given[number] = {ShownChannel(number)};
        }
    }

    // ---- The property ----

    static long Hertz(const wxString& text) {
        double megahertz = 0;
        text.ToCDouble(&megahertz);
        return std::lround(megahertz * 1e6);
    }
    static Channel ShownChannel(int row) { return {Hertz(Cell(row, RFRQ)), Hertz(Cell(row, TFRQ))}; }

    /// Each radio holds each memory that it was given, while the page still shows it complete.
    void ExpectContent() {
        for (KnownRadio& known : m_radios) {
            // A memory that the page has once shown otherwise counts as another one for good.
            std::erase_if(known.given, [](const auto& given) {
                return !RowIsComplete(given.first) || !given.second.count(ShownChannel(given.first));
            });
            if (known.owes)
                continue;
            const auto held = known.radio.Memories();
            for (const auto& [row, channels] : known.given) {
                ++m_tally.memoriesChecked;
                const auto found = held.find(row);
                if (found == held.end())
                    ADD_FAILURE() << "radio " << &known - m_radios.data() << " has lost memory " << row;
                else
                    EXPECT_TRUE(channels.count({found->second.rxFrequency, found->second.txFrequency}))
                        << "memory " << row << " has another frequency";
            }
        }
    }

    void Report(unsigned seed, std::chrono::duration<double> took) const {
        std::cout << "[ property ] seed " << seed << ": " << m_tally.steps << " steps, "
                  << m_tally.steps / took.count() << " a second; " << m_tally.writes << " writes, "
                  << m_tally.reads << " reads, " << m_tally.purges << " purges, " << m_tally.failures
                  << " failed after one, " << m_tally.questions << " questions, " << m_tally.refusals
                  << " refused, " << m_tally.shadows << " shadows, " << m_tally.memoriesChecked
                  << " memories held\n";
    }

    std::mt19937 m_random;
    std::array<KnownRadio, 2> m_radios{KnownRadio("KDRV-716", "20200101000000"),
                                       KnownRadio("KDRV-716", "20210101000000")};
    Tally m_tally;
    std::string m_what; ///< last step, for the failure text
    int m_made = 0, m_reads = 0;
};

} // namespace

TEST_F(RadioContentProperty, HoldsForTheFirstRandomSession) {
    Run(20260101);
}

TEST_F(RadioContentProperty, HoldsForTheSecondRandomSession) {
    Run(20260102);
}

TEST_F(RadioContentProperty, HoldsForTheThirdRandomSession) {
    Run(20260103);
}

TEST_F(RadioContentProperty, HoldsForTheFourthRandomSession) {
    Run(20260104);
}

TEST_F(RadioContentProperty, HoldsForTheFifthRandomSession) {
    Run(20260105);
}
