// Conditions that must hold on P25 pages after any step.
#include "catalogue/TextNumbers.h"
#include "editing/ZelkEdit.h"
#include "tests/editing/RandomEdits.h"

#include <algorithm>
#include <functional>
#include <optional>

namespace {

std::optional<int> NumberIn(const wxString& text) {
    return text.empty() ? std::nullopt : std::optional(ReadDecimal(text));
}

} // namespace

PageImage RandomEdits::ImageOf(int page) {
    PageImage image;
    const wxGrid* grid = PageGrid[page];
    for (int row = 0; row < grid->GetNumberRows(); ++row)
        for (int col = 0; col < grid->GetNumberCols(); ++col)
            image.cells =
                image.cells * 31 + std::hash<std::wstring>{}(grid->GetCellValue(row, col).ToStdWstring());
    image.slots.assign(ZoneSlotsOf(page), ZoneSlotsOf(page) + ZonesPerPage);
    return image;
}

void RandomEdits::ExpectOtherRowsUntouched(const std::vector<wxArrayString>& before) const {
    const int rows = static_cast<int>(before.size());
    for (int row = 0; row < rows; ++row) {
        const wxArrayString& texts = before[static_cast<size_t>(row)];
        if (m_namedRows.count(row) || (ReadHex(texts[MFLG]) & ShadowIndexMask))
            continue;
        for (int col = 0; col < 32; ++col) {
            // A shadow that is removed disappears from its primary's list.
            const bool lost = col >= SHD0 && col <= SHD6 && Cell(row, col) == "0";
            if (!lost && Cell(row, col) != texts[static_cast<size_t>(col)])
                ADD_FAILURE() << "row " << row << ", " << col << " was \"" << texts[static_cast<size_t>(col)]
                              << "\" and is \"" << Cell(row, col) << "\"";
        }
    }
}

void RandomEdits::ExpectShape(int page) {
    const wxGrid* grid = PageGrid[page];
    const int rows = PageParameters[page].Rows;
    ASSERT_EQ(grid->GetNumberCols(), 32);
    ASSERT_EQ(grid->GetNumberRows(), rows + 1);
    EXPECT_TRUE(grid->IsReadOnly(0, MNUM)) << "number of the default row";
    for (int row = 0; row <= rows; ++row) {
        if (grid->GetRowLabelValue(row) != NumberText(row))
            ADD_FAILURE() << "label of row " << row << ": " << grid->GetRowLabelValue(row);
        for (int col = 0; col < 32; ++col) {
            const wxString text = grid->GetCellValue(row, col);
            if (!text.empty() && wxString::FromUTF8(text.utf8_string()) != text)
                ADD_FAILURE() << "page " << page + 1 << ", text of " << row << ", " << col;
        }
    }
    if (page == CurrentPage) {
        EXPECT_EQ(GD1, rows - 1);
        EXPECT_EQ(GD2, rows);
    }
}

void RandomEdits::ExpectSlotsInRange() {
    const int total = static_cast<int>(ZoneSlots.size());
    for (int i = 0; i < total; ++i)
        if (ZoneSlots[i] < 0 || ZoneSlots[i] > 16)
            ADD_FAILURE() << "page " << i / 32 + 1 << ", zone position " << i % 32 << " holds "
                          << ZoneSlots[i];
    // Pages that don't exist, except the position that the second page reaches.
    for (int i = 2 * 32 + 1; i < total; ++i)
        EXPECT_EQ(ZoneSlots[i], 0) << "page " << i / 32 + 1;
}

int RandomEdits::OtherRowWith(int row, const wxString& number) {
    const std::optional<int> wanted = NumberIn(number);
    for (int other = 1; wanted && other <= CurrentParameters().Rows; ++other)
        if (other != row && NumberIn(Cell(other, MNUM)) == wanted)
            return other;
    return 0;
}

void RandomEdits::ExpectNumberBox(testbench::DialogScript& dialogs, int row) {
    if (row != 0)
        dialogs
            .ExpectMessage("Error", wxString::Format("Number already used at row: %03d", row).utf8_string())
            .Style(testbench::PlainBox);
}

void RandomEdits::ExpectBoxesOfPageCheck(testbench::DialogScript& dialogs) {
    const int rows = CurrentParameters().Rows;
    std::vector<std::optional<int>> numbers{std::nullopt};
    for (int row = 1; row <= rows; ++row)
        numbers.push_back(NumberIn(Cell(row, MNUM)));
    for (int row = 1; row <= rows; ++row) {
        std::optional<int>& number = numbers[static_cast<size_t>(row)];
        if (!number)
            continue;
        const int wanted = *number;
        number.reset();
        const auto other = std::find(numbers.begin() + 1, numbers.end(), wanted);
        if (other != numbers.end())
            ExpectNumberBox(dialogs, static_cast<int>(other - numbers.begin()));
        else if (wanted <= rows)
            number = wanted;
    }
}

void RandomEdits::ExpectSlotsCounted() {
    const int rows = CurrentParameters().Rows;
    const int last = CurrentParameters().Type == RadioCatalogue::NP25 ? 31 : 15;
    std::vector<int> shown(ZonesPerPage);
    for (int row = 1; row <= rows; ++row) {
        const int zone = FindZone(Cell(row, ZONE));
        if (!RowHasData(row) || IsShadow(CurrentGrid(), row) || zone == wxNOT_FOUND)
            continue;
        // A guard row whose zone is full keeps its text without a slot.
        if (row < GD1 || zone == last)
            ++shown[static_cast<size_t>(zone)];
    }
    for (int zone = 0; zone < ZonesPerPage; ++zone)
        EXPECT_EQ(ZoneSlotsOf(CurrentPage)[zone], std::min(shown[static_cast<size_t>(zone)], 16))
            << "zone position " << zone;
}

void RandomEdits::ExpectCheckedPage() {
    const int rows = CurrentParameters().Rows;
    std::set<int> numbers;
    for (int row = 1; row <= rows; ++row) {
        if (!RowHasData(row))
            continue;
        const wxString number = Cell(row, MNUM), shad = Cell(row, SHAD), desc = Cell(row, DESC);
        if (!number.empty()) {
            EXPECT_TRUE(numbers.insert(ReadDecimal(number)).second)
                << "number of row " << row << " is double";
            EXPECT_LE(ReadDecimal(number), rows) << "number of row " << row;
        }
        EXPECT_EQ(Cell(row, PRIM), number) << "row " << row;
        EXPECT_TRUE(shad == "N" || shad.StartsWith("P-") || shad.StartsWith("S-")) << "row " << row;
        EXPECT_TRUE(IsGuardRow(row) || Cell(row, SCAN) == "Y" || Cell(row, SCAN) == "N") << "row " << row;
        EXPECT_LE(desc.length(), 8U) << "row " << row;
        EXPECT_TRUE(std::all_of(desc.begin(), desc.end(),
                                [](wxUniChar c) { return c.GetValue() >= 32 && c.GetValue() <= 122; }))
            << "row " << row;
        EXPECT_NE(TransferFlags(CurrentGrid(), row) & ZoneTakenFlag, 0) << "row " << row;
        EXPECT_TRUE(!IsShadow(CurrentGrid(), row) || Cell(row, ZONE).empty()) << "row " << row;
    }
    ExpectSlotsCounted();
}

void RandomEdits::ExpectSecondCheckKeepsZones() {
    const auto zones = [] {
        Texts texts;
        for (int row = 1; row <= CurrentParameters().Rows; ++row)
            texts.push_back((Cell(row, ZONE) + "|" + Cell(row, TFLG) + "|" + Cell(row, MNUM)).utf8_string());
        return texts;
    };
    const Texts before = zones();
    const auto slots = ZoneSlots;
    testbench::DialogScript none;
    CheckPage();
    EXPECT_EQ(zones(), before) << "a second check";
    EXPECT_EQ(ZoneSlots, slots) << "a second check";
}
