// Attributes of columns, and of cells that differ from their column.
#include "catalogue/PageTable.h"

#include "tests/catalogue/PageTest.h"

namespace {

class PageAttributes : public PageTest {
protected:
    static wxGrid* Grid() { return CurrentGrid(); }
    static PageTable& Table() { return TableOf(Grid()); }

    /// The attribute that the grid gets for a cell; only its address matters.
    static const wxGridCellAttr* AttrOf(int row, int col) {
        return Table().GetAttrPtr(row, col, wxGridCellAttr::Any).get();
    }

    static wxGridCellEditorPtr EditorOf(int row, int col) {
        return wxGridCellEditorPtr(Grid()->GetCellEditor(row, col));
    }

    static int CountLooks() {
        int count = 0;
        Table().ChangeLooks([&count](int, int, CellLook&) { ++count; });
        return count;
    }
};

} // namespace

TEST_F(PageAttributes, AreThoseOfTheColumnInRowsThatDontDiffer) {
    for (int col : {DESC, RFRQ, RTON})
        for (int row : {2, 60, 120})
            EXPECT_EQ(AttrOf(row, col), AttrOf(1, col)) << row << ", " << col;
}

TEST_F(PageAttributes, AreOfACellOnlyWhereItDiffers) {
    const int fixed = CountLooks();
    EXPECT_EQ(fixed, 9) << "the default number, and four cells of each guard row";
    LockCell(Grid(), 5, RFRQ);
    PaintCell(Grid(), 6, RFRQ, FailColour);
    EXPECT_EQ(CountLooks(), fixed + 2);
    LockCell(Grid(), 5, RFRQ, false);
    PaintCell(Grid(), 6, RFRQ, Grid()->GetDefaultCellBackgroundColour());
    EXPECT_EQ(CountLooks(), fixed);
}

TEST_F(PageAttributes, OfCellsThatDifferKeepWhatTheColumnHas) {
    const wxGridCellEditorPtr editor = EditorOf(6, RFRQ);
    LockCell(Grid(), 5, RFRQ);
    PaintCell(Grid(), 5, RFRQ, FailColour);
    EXPECT_EQ(EditorOf(5, RFRQ).get(), editor.get());
    int horizontal, vertical;
    Grid()->GetCellAlignment(5, RFRQ, &horizontal, &vertical);
    EXPECT_EQ(horizontal, wxALIGN_CENTRE);
    EXPECT_TRUE(Grid()->IsReadOnly(5, RFRQ));
    EXPECT_EQ(Grid()->GetCellBackgroundColour(5, RFRQ), FailColour);
}

TEST_F(PageAttributes, OfAColumnThatIsReadOnlyCanBeLiftedInACell) {
    AddPage(RadioCatalogue::Kdrv716B, 0);
    EXPECT_TRUE(Grid()->IsReadOnly(5, SHAD));
    LockCell(Grid(), 5, SHAD, false);
    EXPECT_FALSE(Grid()->IsReadOnly(5, SHAD));
    EXPECT_TRUE(Grid()->IsReadOnly(6, SHAD));
    LockCell(Grid(), 5, SHAD);
    EXPECT_TRUE(Grid()->IsReadOnly(5, SHAD));
}

TEST_F(PageAttributes, AreTheSameObjectInCellsThatDifferAlike) {
    // In columns without an attribute, the grid gets that of the cell itself.
    for (int row : {5, 6, 7})
        PaintCell(Grid(), row, PRIM, MarkColour);
    LockCell(Grid(), 7, PRIM);
    EXPECT_EQ(AttrOf(6, PRIM), AttrOf(5, PRIM));
    EXPECT_NE(AttrOf(5, PRIM), AttrOf(7, PRIM));
    LockCell(Grid(), 7, PRIM, false);
    EXPECT_EQ(AttrOf(7, PRIM), AttrOf(5, PRIM));
}

TEST_F(PageAttributes, ThatTheGridChangesInOneCellStayInTheOthers) {
    for (int row : {5, 6})
        PaintCell(Grid(), row, DESC, MarkColour);
    Grid()->SetCellBackgroundColour(5, DESC, FailColour);
    Grid()->SetReadOnly(5, DESC);
    EXPECT_EQ(Grid()->GetCellBackgroundColour(5, DESC), FailColour);
    EXPECT_EQ(Grid()->GetCellBackgroundColour(6, DESC), MarkColour);
    EXPECT_TRUE(Grid()->IsReadOnly(5, DESC));
    EXPECT_FALSE(Grid()->IsReadOnly(6, DESC));
    EXPECT_FALSE(Grid()->IsReadOnly(7, DESC));
}

TEST_F(PageAttributes, ThatWereJustAskedForAreNotToldWhenTheyHaveChanged) {
    // The grid caches the last attribute.
    EXPECT_FALSE(Grid()->IsReadOnly(5, RFRQ));
    Grid()->SetReadOnly(5, RFRQ);
    EXPECT_TRUE(Grid()->IsReadOnly(5, RFRQ));
    LockCell(Grid(), 5, RFRQ, false);
    EXPECT_FALSE(Grid()->IsReadOnly(5, RFRQ));
    LockCell(Grid(), 5, RFRQ);
    EXPECT_TRUE(Grid()->IsReadOnly(5, RFRQ));
    Grid()->SetReadOnly(5, RFRQ, false);
    EXPECT_FALSE(Grid()->IsReadOnly(5, RFRQ));
    Grid()->SetCellBackgroundColour(5, RFRQ, FailColour);
    EXPECT_EQ(Grid()->GetCellBackgroundColour(5, RFRQ), FailColour);
    PaintCell(Grid(), 5, RFRQ, MarkColour);
    EXPECT_EQ(Grid()->GetCellBackgroundColour(5, RFRQ), MarkColour);
}

TEST_F(PageAttributes, ThatTheGridGaveKeepTheirFontWhenPaintAndLockChange) {
    const wxFont large = Grid()->GetDefaultCellFont().Larger();
    Grid()->SetCellFont(5, DESC, large);
    LockCell(Grid(), 5, DESC);
    PaintCell(Grid(), 5, DESC, FailColour);
    EXPECT_EQ(Grid()->GetCellFont(5, DESC), large);
    EXPECT_TRUE(Grid()->IsReadOnly(5, DESC));
    LockCell(Grid(), 5, DESC, false);
    EXPECT_FALSE(Grid()->IsReadOnly(5, DESC));
    EXPECT_EQ(Grid()->GetCellBackgroundColour(5, DESC), FailColour);
}

TEST_F(PageAttributes, OfRowsMoveWithTheirRows) {
    PaintCell(Grid(), 5, DESC, FailColour);
    LockCell(Grid(), 7, RFRQ);
    Grid()->InsertRows(6, 2);
    EXPECT_EQ(Grid()->GetCellBackgroundColour(5, DESC), FailColour);
    EXPECT_TRUE(Grid()->IsReadOnly(9, RFRQ));
    EXPECT_FALSE(Grid()->IsReadOnly(7, RFRQ));
    Grid()->DeleteRows(5, 3);
    EXPECT_TRUE(Grid()->IsReadOnly(6, RFRQ));
    for (int row : {4, 5, 6})
        EXPECT_NE(Grid()->GetCellBackgroundColour(row, DESC), FailColour) << row;
}

TEST_F(PageAttributes, OfRowsThatAreAddedOrTakenAwayAtTheEnd) {
    const int rows = Grid()->GetNumberRows();
    Grid()->AppendRows(3);
    LockCell(Grid(), rows + 2, RFRQ);
    EXPECT_TRUE(Grid()->IsReadOnly(rows + 2, RFRQ));
    EXPECT_FALSE(Grid()->IsReadOnly(rows + 1, RFRQ));
    EXPECT_EQ(EditorOf(rows + 1, RFRQ).get(), EditorOf(1, RFRQ).get());
    Grid()->DeleteRows(rows, 3);
    Grid()->InsertRows(rows, 3);
    EXPECT_FALSE(Grid()->IsReadOnly(rows + 2, RFRQ)) << "a new row has nothing of a former one";
}

TEST_F(PageAttributes, OfARowCanBeMovedAndForgotten) {
    PaintCell(Grid(), 9, DESC, FailColour);
    LockCell(Grid(), 3, DESC);
    Table().MoveLooks(9, 3);
    EXPECT_EQ(Grid()->GetCellBackgroundColour(3, DESC), FailColour);
    EXPECT_FALSE(Grid()->IsReadOnly(3, DESC));
    EXPECT_NE(Grid()->GetCellBackgroundColour(9, DESC), FailColour);
    Table().ForgetLooks(3);
    EXPECT_NE(Grid()->GetCellBackgroundColour(3, DESC), FailColour);
}

TEST_F(PageAttributes, KeepPaintAndLocksWhenEditorsAreForgotten) {
    wxGridCellEditor* const own = new wxGridCellTextEditor;
    Grid()->SetCellEditor(5, RFRQ, own);
    LockCell(Grid(), 5, RFRQ);
    PaintCell(Grid(), 5, RFRQ, FailColour);
    EXPECT_EQ(EditorOf(5, RFRQ).get(), own);
    Table().ForgetEditors(5);
    EXPECT_EQ(EditorOf(5, RFRQ).get(), EditorOf(6, RFRQ).get());
    EXPECT_TRUE(Grid()->IsReadOnly(5, RFRQ));
    EXPECT_EQ(Grid()->GetCellBackgroundColour(5, RFRQ), FailColour);
}
