// A page used the way people use a spreadsheet.
#pragma once

#include "tests/editing/CellTools.h"
#include "tests/frame/FrameTools.h"

#include <wx/menu.h>

#include <algorithm>
#include <map>
#include <string>
#include <vector>

class GridHabits : public CellTest {
protected:
    using Columns = std::vector<int>;
    using Place = std::pair<int, int>;

    /// Everything that a user sees of a cell or may do with it.
    struct CellState {
        std::string text;
        wxUint32 paint;
        bool locked;
        bool operator==(const CellState&) const = default;
    };
    using PageState = std::map<Place, CellState>;

    /// The state of all cells of the page.
    static PageState StateOfPage() {
        PageState state;
        for (int row = 0; row < Grid()->GetNumberRows(); ++row)
            for (int col = 0; col < ColumnTotal; ++col)
                state[{row, col}] = {Text(row, col), Grid()->GetCellBackgroundColour(row, col).GetRGB(),
                                     IsLocked(row, col)};
        return state;
    }

    /// The cells that differ from an earlier state, with their texts; empty if none does.
    static std::string ChangesSince(const PageState& before) {
        std::string changes;
        for (const auto& [place, now] : StateOfPage())
            if (before.at(place) != now)
                changes += "row " + std::to_string(place.first) + " " + ColumnTag[place.second] + ": \"" +
                           before.at(place).text + "\" -> \"" + now.text + "\"; ";
        return changes;
    }

    static Place Cursor() { return {Grid()->GetGridCursorRow(), Grid()->GetGridCursorCol()}; }
    static bool IsOpen() { return Grid()->IsCellEditControlShown(); }

    /// Row 5 as a primary and row 8 as its shadow, on a page of the second generation.
    static void MakeShadow() {
        Retarget(Kdrv716B, 0);
        Fill({5});
        testbench::DialogScript dialogs;
        dialogs.Expect(testbench::DialogKind::Other, "For Primary: 005 create Shadow: 1")
            .Do([](wxDialog* dialog) {
                testbench::TypeText("8");
                testbench::ClickButton(dialog, wxID_OK);
            });
        ContextRow = 5;
        MainFrame->m_contextMenu->SendEvent(6025);
        testbench::ShowAndFocus(*MainFrame);
        EXPECT_EQ(Text(8, SHAD), "S-005");
    }
};
