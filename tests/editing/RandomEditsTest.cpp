// P25 pages under thousands of random commands and edits: they stay consistent.
#include "tests/editing/RandomEdits.h"

#include "catalogue/TextNumbers.h"
#include "commands/CommandIds.h"
#include "commands/OpenEditor.h"
#include "editing/ZelkEdit.h"
#include "tests/editing/CrashReport.h"

#include <wx/notebook.h>

#include <algorithm>
#include <iomanip>
#include <iostream>
#include <numeric>

namespace {

constexpr size_t RecentSteps = 10;

} // namespace

void RandomEdits::Note(const std::string& text) {
    m_recent.back() += " " + text;
    CrashReport::Note(Recent());
}

void RandomEdits::SetUp() {
    CommandTest::SetUp();
    testbench::ShowAndFocus(*MainFrame);
}

void RandomEdits::TearDown() {
    CommitOpenEditor();
    CommandTest::TearDown();
}

std::string RandomEdits::Recent() const {
    std::string text =
        "seed " + std::to_string(m_seed) + ", step " + std::to_string(m_step) + "; the last steps:";
    for (const std::string& step : m_recent)
        text += "\n  " + step;
    return text;
}

const RandomEdits::Kind& RandomEdits::PickKind() {
    const bool editing = CurrentGrid()->IsCellEditControlEnabled();
    const auto counts = [editing](const Kind& kind) { return !editing || kind.whileEditing; };
    int sum = 0;
    for (const Kind& kind : Kinds())
        sum += counts(kind) ? kind.weight : 0;
    int left = m_dice.Below(sum);
    for (const Kind& kind : Kinds())
        if (counts(kind) && (left -= kind.weight) < 0)
            return kind;
    return Kinds().front();
}

void RandomEdits::Step() {
    const Kind& kind = PickKind();
    const bool editing = CurrentGrid()->IsCellEditControlEnabled();
    const int page = CurrentPage;
    m_recent.push_back(std::to_string(m_step) + ", page " + std::to_string(page + 1) + ":");
    if (m_recent.size() > RecentSteps)
        m_recent.pop_front();
    Note(kind.name);
    ++m_done[page][kind.name];

    m_cancelled = m_clearsSlots = m_namesRows = false;
    m_namedRows.clear();
    if (editing)
        m_namedRows.insert(CurrentGrid()->GetGridCursorRow());
    std::vector<wxArrayString> rows;
    for (int row = 0; row <= CurrentParameters().Rows; ++row)
        rows.push_back(GetRowValues(page, row));
    const PageImage before = ImageOf(page), beforeOther = ImageOf(1 - page);
    (this->*kind.run)();
    if (m_namesRows)
        ExpectOtherRowsUntouched(rows);
    if (m_cancelled && !editing) {
        EXPECT_TRUE(before == ImageOf(page)) << "a step without effect changed the page";
    }
    // The first page reaches zone 0 of the second one: it clears its counter and, once full itself,
    // takes slots of it.
    PageImage other = ImageOf(1 - page);
    const int32_t* own = ZoneSlotsOf(0);
    const bool reaches = m_clearsSlots ? other.slots[0] == 0 : std::accumulate(own, own + 32, 0) == 32 * 16;
    if (page == 0 && reaches)
        other.slots[0] = beforeOther.slots[0];
    EXPECT_TRUE(other == beforeOther || kind.run == &RandomEdits::ChangePage) << "the other page has changed";

    for (int each : {0, 1})
        ExpectShape(each);
    ExpectSlotsInRange();
}

void RandomEdits::Work(uint32_t seed, int steps) {
    m_dice = Dice(seed);
    m_seed = seed;
    const CrashReport crashReport;
    MainFrame->m_notebook->SetSelection(0);
    for (m_step = 1; m_step <= steps; ++m_step) {
        Step();
        if (m_step % 10 == 0)
            wxYield(); // paints whatever the cells contain
        m_rowsSeen = std::max(m_rowsSeen, FilledRows().size());
        size_t shadows = 0;
        for (int row = 1; row <= CurrentParameters().Rows; ++row)
            shadows += IsShadow(CurrentGrid(), row);
        m_shadowsSeen = std::max(m_shadowsSeen, shadows);
        if (HasFailure()) {
            FAIL() << Recent();
        }
    }
    TellSummary();
    for (const Kind& kind : Kinds())
        EXPECT_GT(m_done[0][kind.name] + m_done[1][kind.name], 0) << kind.name << " was never done";
    EXPECT_GT(m_shadowsSeen, 5U) << "hardly any shadows were at work";
    EXPECT_GT(m_rowsSeen, 100U) << "the pages were almost empty";
}

void RandomEdits::TellSummary() const {
    for (int page : {0, 1}) {
        const PageParameterRecord& parameters = PageParameters[page];
        for (const auto& [name, count] : m_done[page])
            std::cout << "page " << page + 1 << ", " << parameters.Rows << " rows: " << std::setw(5) << count
                      << " " << name << "\n";
    }
    std::cout << "most rows in use: " << m_rowsSeen << ", most shadows: " << m_shadowsSeen << "\n";
}

namespace {

class P25PagesWorkedHard : public RandomEdits {
protected:
    /// Most of the work is on a page with 502 rows; the other page has 232.
    void WorkOnTheSecondGeneration(uint32_t seed, int steps) {
        Retarget(Kdrv716B, 0);
        testbench::AddPage(Kdrv716);
        ASSERT_EQ(PageParameters[0].Rows, 502);
        ASSERT_EQ(PageParameters[1].Rows, 232);
        Work(seed, steps);
    }

    /// Most of the work is on a page with 232 rows; the other page has 502.
    void WorkOnTheFirstGeneration(uint32_t seed, int steps) {
        Retarget(Kdrv716, 0);
        testbench::AddPage(Kdrv716B);
        ASSERT_EQ(PageParameters[0].Rows, 232);
        ASSERT_EQ(PageParameters[1].Rows, 502);
        Work(seed, steps);
    }
};

} // namespace

TEST_F(P25PagesWorkedHard, KeepShapeAndCountersThrough750StepsOnTheSecondGeneration) {
    WorkOnTheSecondGeneration(20240716, 750);
}

TEST_F(P25PagesWorkedHard, KeepShapeAndCountersThrough750OtherStepsOnTheSecondGeneration) {
    WorkOnTheSecondGeneration(502, 750);
}

TEST_F(P25PagesWorkedHard, KeepShapeAndCountersThrough700StepsOnTheFirstGeneration) {
    WorkOnTheFirstGeneration(716, 700);
}
