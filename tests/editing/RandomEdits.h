// Random commands and edits on P25 pages, as a user without a plan would do. Reproducible by seed.
#pragma once

#include "tests/editing/CommandTest.h"

#include <cstdint>
#include <deque>
#include <map>
#include <random>
#include <set>
#include <string>
#include <vector>

/// Random numbers that are the same on every machine, as only the engine produces them.
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

/// Everything on a page that commands can change, for comparison at a later time.
struct PageImage {
    size_t cells = 0;
    std::vector<int32_t> slots;

    bool operator==(const PageImage&) const = default;
};

/// Works on the first two pages, both P25, and checks after each step that they are consistent.
class RandomEdits : public CommandTest {
protected:
    void SetUp() override;
    void TearDown() override;

    /// Does this number of steps, most of them on the first page. Stops at the first failure and
    /// reports the steps that led to it.
    void Work(uint32_t seed, int steps);

private:
    struct Kind {
        const char* name;
        int weight;
        void (RandomEdits::*run)();
        /// Whether its questions can be predicted while a cell editor is open.
        bool whileEditing;
    };
    static const std::vector<Kind>& Kinds();

    const Kind& PickKind();
    void Step();
    void TellSummary() const;
    /// Adds to the report of the running step.
    void Note(const std::string& text);
    /// Seed, step and the last ten steps.
    std::string Recent() const;

    // The possible steps; in RandomEditsSteps.cpp.
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
    void DefaultAllRows();
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
    /// Records that the step works on rows, and that this row is one of them.
    void NameRow(int row);
    void NameSelectedRows();
    void RunOnPickedColumn(int command);
    void EditCell(int row, int col);
    void PutIntoEditor(wxGridCellEditor* editor, int row, int col);
    std::string ShadowText();

    // Conditions that must hold; in RandomEditsChecks.cpp.
    static PageImage ImageOf(int page);
    static void ExpectShape(int page);
    static void ExpectSlotsInRange();
    /// A step that works on rows changes no other rows except those that are linked with them.
    void ExpectOtherRowsUntouched(const std::vector<wxArrayString>& before) const;
    /// A page that has just been checked meets stronger conditions.
    static void ExpectCheckedPage();
    static void ExpectSlotsCounted();
    void ExpectSecondCheckKeepsZones();

    /// The row that the box reports: another one than row that holds the number; 0 if none does.
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
    /// The step may clear the counters up to one position into the next page.
    bool m_clearsSlots = false;
    /// The rows that the step works on, if it works on rows.
    std::set<int> m_namedRows;
    bool m_namesRows = false;
    size_t m_shadowsSeen = 0, m_rowsSeen = 0;
};
