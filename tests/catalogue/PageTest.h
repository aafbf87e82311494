// Short words for tests of pages.
#pragma once

#include "tests/support/ZelkWindowTest.h"

#include <initializer_list>
#include <string>
#include <vector>

class PageTest : public ZelkWindowTest {
protected:
    /// Makes a further page for the radio and band slot; it becomes the current one.
    static void AddPage(int radio, int bandIndex) {
        SetPageParameters(MainFrame, PageCount, radio, bandIndex);
        CreateNewPage(MainFrame, PageCount);
    }

    /// The 32 cell texts of a row of the current page.
    static std::vector<std::string> RowTexts(int row) {
        std::vector<std::string> texts;
        for (int col = 0; col < 32; ++col)
            texts.push_back(Cell(row, col).utf8_string());
        return texts;
    }

    /// The memory rows of the current page that have any text, from row 1 on.
    static std::vector<int> FilledRows() {
        std::vector<int> rows;
        for (int row = 1; row < CurrentGrid()->GetNumberRows(); ++row)
            for (int col = 0; col < 32; ++col)
                if (!Cell(row, col).empty()) {
                    rows.push_back(row);
                    break;
                }
        return rows;
    }

    static void SelectRows(std::initializer_list<int> rows) {
        CurrentGrid()->ClearSelection();
        for (int row : rows)
            CurrentGrid()->SelectRow(row, true);
    }

    static int SlotsTaken(int page, int zone) { return ZoneSlots[static_cast<size_t>(page * 32 + zone)]; }
};
