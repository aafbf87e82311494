// Shorthands for tests of pages.
#pragma once

#include "tests/support/ZelkWindowTest.h"

#include <initializer_list>
#include <string>
#include <vector>

class PageTest : public ZelkWindowTest {
protected:
    /// Adds a page for the radio and band slot and makes it the current one.
    static void AddPage(int radio, int bandIndex) {
        SetPageParameters(MainFrame, PageCount, radio, bandIndex);
        CreateNewPage(MainFrame, PageCount);
    }

    static void SelectRows(std::initializer_list<int> rows) {
        CurrentGrid()->ClearSelection();
        for (int row : rows)
            CurrentGrid()->SelectRow(row, true);
    }

    static int SlotsTaken(int page, int zone) { return ZoneSlots[page * 32 + zone]; }
};
