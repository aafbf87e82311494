// A person who works without a plan: random commands and edits on P25 pages, the same each time.
#pragma once

#include "tests/editing/CommandTest.h"

#include <cstdint>
#include <deque>
#include <map>
#include <random>
#include <set>
#include <string>
#include <vector>

/// Random numbers that are the same on every machine: they come from the engine alone.
class Dice {
public:
    explicit Dice(uint32_t seed) : m_engine(seed) {}

    /// 0 to count - 1.
    int Below(int count) { return static_cast<int>(m_engine() % static_cast<uint32_t>(count)); }
    int Between(int low, int high) { return low + Below(high - low + 1); }
    bool Chance(int percent) { return Below(100) < percent; }
    template <class List>
    const auto& Pick(const List& list) {
        return *(std::begin(list) + Below(static_cast<int>(std::size(list))));
    }

private:
    std::mt19937 m_engine;
};

/// All that commands can change of a page, to be held against a later moment.
struct PageImage {
    size_t cells = 0;
    std::vector<int32_t> slots;

    bool operator==(const PageImage&) const = default;
};

/// Works on the first two pages, both P25 ones, and looks after each step whether they hold together.
class HardWork : public CommandTest {
protected:
    void SetUp() override;
    void TearDown() override;

    /// Does so many steps, most of them on the first page. Stops at the first that goes wrong, with
    /// what led to it.
    void Work(uint32_t seed, int steps);

private:
    struct Kind {
        const char* name;
        int weight;
        void (HardWork::*run)();
        /// Whether it asks no more than what can be known while a cell editor is open.
        bool whileEditing;
    };
    static const std::vector<Kind>& Kinds();

    const Kind& PickKind();
    void Step();
    void TellSummary() const;
    /// Adds to what is told about the running step.
    void Note(const std::string& text);
    /// Seed, step and the last ten steps.
    std::string Recent() const;

    // What a step can be; HardWorkSteps.cpp.
    void DefaultRows();
    void CopyOneRow();
    void PasteOneRow();
    void ClearRows();
    void InsertOneRow();
    void DeleteRows();
    void MarkRows();
    void DefaultOneCol();
    void DefaultMarkedRows();
    void RenumberByRow();
    void RenumberInSequence();
    void DefaultWholeFile();
    void SaveDefaults();
    void LoadDefaults();
    void SelectEverything();
    void SelectNothing();
    void ClearHighlights();
    void CreateOneShadow();
    void ValidateByMenu();
    void CheckByCall();
    void EditOneCell();
    void TypeIntoOneCell();
    void WriteHostileText();
    void ChangePage();

    void Ask(int command);
    void RunUnimplemented(int command, const char* caption);
    void PickSelection();
    void PickContextRow();
    int PickRow();
    int PickGoodRow();
    /// The step is one that works on rows, on this one among others.
    void NameRow(int row);
    void NameSelectedRows();
    void RunOnPickedColumn(int command);
    void EditCell(int row, int col);
    void PutIntoEditor(wxGridCellEditor* editor, int row, int col);
    std::string ShadowText();

    // What must hold; HardWorkChecks.cpp.
    static PageImage ImageOf(int page);
    static void ExpectShape(int page);
    static void ExpectSlotsInRange();
    /// A step that works on rows touches no others but those that are linked with them.
    void ExpectOtherRowsUntouched(const std::vector<wxArrayString>& before) const;
    /// A page that has just been checked keeps stronger promises.
    static void ExpectCheckedPage();
    static void ExpectSlotsCounted();
    void ExpectSecondCheckKeepsZones();

    /// The row whose box tells that another one than row holds the number; 0 when none does.
    static int OtherRowWith(int row, const wxString& number);
    static void ExpectNumberBox(testbench::DialogScript& dialogs, int row);
    static void ExpectBoxesOfPageCheck(testbench::DialogScript& dialogs);

    Dice m_dice{0};
    uint32_t m_seed = 0;
    int m_step = 0;
    std::deque<std::string> m_recent;
    std::map<std::string, int> m_done[2];
    int m_copiedPage = -1;
    /// The command has been cancelled: nothing may change.
    bool m_cancelled = false;
    /// The counters may be cleared one position into the next page.
    bool m_clearsSlots = false;
    /// The rows that the step works on, if it is one that works on rows.
    std::set<int> m_namedRows;
    bool m_namesRows = false;
    size_t m_shadowsSeen = 0, m_rowsSeen = 0;
};
