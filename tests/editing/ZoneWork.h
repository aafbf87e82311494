// Random work on the zones of pages of both P25 generations, as a user without a plan would do.
#pragma once

#include "robot/TempFolder.h"
#include "tests/editing/CommandTest.h"
#include "tests/editing/RandomEdits.h"

#include <array>
#include <deque>
#include <map>
#include <string>
#include <vector>

/// Makes, deletes, visits, checks, opens, fills, clears, sends and reads pages. Checks after each step that
/// counters, cells and records agree on the zones.
class ZoneWork : public CommandTest {
protected:
    void SetUp() override;

    /// Does this number of steps. Stops at the first failure and reports the steps that led to it.
    void Work(uint32_t seed, int steps);

private:
    struct Kind {
        const char* name;
        int weight;
        void (ZoneWork::*run)();
    };
    static const std::vector<Kind>& Kinds();
    const Kind& PickKind();
    void Step();
    void Note(const std::string& text);
    std::string Recent() const;

    // The possible steps.
    void MakePage();
    void DeletePage();
    void VisitPage();
    void CheckThePage();
    void OpenFile();
    void ImportList();
    void FillRows();
    void TypeIntoRow();
    void ChooseZone();
    void ClearRow();
    void SendPage();
    void ReadBack();

    // Conditions that must hold.
    static Texts ZonesOf(int page);
    void ExpectCountersTellTheRows(int page) const;
    void ExpectRecordsTellTheCells(int row) const;

    int PickRow();
    int PickBlankRow();
    std::string PickZone(int type);
    std::string FileText(int type);
    void ForgetZone1OfTheNextPage();

    Dice m_dice{0};
    uint32_t m_seed = 0;
    int m_step = 0;
    std::deque<std::string> m_recent;
    std::map<std::string, int> m_done;
    /// Pages whose counter of zone 1 was cleared with the counters of the page before; it is right
    /// again after a check.
    /// Intentional: clearing reaches one counter into the next page.
    std::array<bool, PageLimit + 1> m_lostZone1{};
    mutable int m_countersCompared = 0, m_recordsCompared = 0, m_lettersCompared = 0;
    testbench::TempFolder m_folder{"zelk-zones"};
};
