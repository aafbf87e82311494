#include "catalogue/PageTable.h"

#include "catalogue/Contrast.h"

#include <algorithm>

namespace {

wxGridCellAttr* Retained(wxGridCellAttr* attr) {
    if (attr)
        attr->IncRef();
    return attr;
}

CellLook LookOfAttr(const wxGridCellAttr& attr) {
    CellLook look;
    if (attr.HasReadWriteMode())
        look.readOnly = attr.IsReadOnly();
    if (attr.HasBackgroundColour())
        look.paint = attr.GetBackgroundColour();
    if (attr.HasEditor())
        look.editor = attr.GetEditorPtr(nullptr, 0, 0);
    return look;
}

void Apply(wxGridCellAttr& attr, const CellLook& look) {
    if (look.readOnly)
        attr.SetReadOnly(*look.readOnly);
    attr.SetBackgroundColour(look.paint);
    if (look.editor)
        look.editor->IncRef(); // the attribute takes this reference
    attr.SetEditor(look.editor.get());
}

/// Clones an attribute, including an explicit "writable" mark, which the toolkit's own Clone drops.
wxGridCellAttr* CloneOf(const wxGridCellAttr& attr) {
    wxGridCellAttr* const clone = attr.Clone();
    if (attr.HasReadWriteMode())
        clone->SetReadOnly(attr.IsReadOnly());
    return clone;
}

/// Whether the attribute holds more than a CellLook can.
bool HasMore(const wxGridCellAttr& attr) {
    return attr.HasTextColour() || attr.HasFont() || attr.HasAlignment() || attr.HasRenderer() ||
           attr.HasOverflowMode() || attr.HasSize();
}

/// Returns the colour of texts on the attribute's own background, invalid for that of the grid. It depends on
/// the grid's colours, and so on the theme; an attribute doesn't hold it.
wxColour TextColourOf(const wxGridCellAttr& attr, const wxGrid& grid) {
    if (!attr.HasBackgroundColour() || attr.HasTextColour())
        return {};
    const wxColour usual = grid.GetDefaultCellTextColour();
    const wxColour readable = ReadableOn(attr.GetBackgroundColour(), usual);
    return readable == usual ? wxColour() : readable;
}

} // namespace

PageTable::PageTable(int rows) : wxGridStringTable(rows, ColumnTotal), m_cells(static_cast<size_t>(rows)) {}

const wxGridCellAttr* PageTable::Own(int row, int col) const {
    if (row < 0 || row >= static_cast<int>(m_cells.size()))
        return nullptr;
    for (const OwnCell& cell : m_cells[static_cast<size_t>(row)])
        if (cell.col == col)
            return cell.attr.get();
    return nullptr;
}

std::vector<int> PageTable::OwnColumns(int row) const {
    std::vector<int> columns;
    for (const OwnCell& cell : m_cells[static_cast<size_t>(row)])
        columns.push_back(cell.col);
    return columns;
}

void PageTable::DropOwn(int row, int col) {
    std::erase_if(m_cells[static_cast<size_t>(row)], [col](const OwnCell& cell) { return cell.col == col; });
}

void PageTable::Store(int row, int col, const wxGridCellAttrPtr& attr) {
    for (OwnCell& cell : m_cells[static_cast<size_t>(row)])
        if (cell.col == col) {
            cell.attr = attr;
            return;
        }
    m_cells[static_cast<size_t>(row)].push_back({col, attr});
}

void PageTable::StoreShared(int row, int col, const CellLook& look) {
    for (const auto& [shared, attr] : m_shared)
        if (shared == look)
            return Store(row, col, attr);
    // The grid creates the first one, so that it falls back on the grid's defaults.
    DropOwn(row, col);
    const wxGridCellAttrPtr attr = GetView()->GetOrCreateCellAttrPtr(row, col);
    Apply(*attr, look);
    m_shared.emplace_back(look, attr);
}

bool PageTable::IsShared(const wxGridCellAttr* attr) const {
    return std::any_of(m_shared.begin(), m_shared.end(),
                       [attr](const auto& shared) { return shared.second.get() == attr; });
}

CellLook PageTable::LookOf(int row, int col) const {
    const wxGridCellAttr* own = Own(row, col);
    return own ? LookOfAttr(*own) : CellLook();
}

void PageTable::SetLook(int row, int col, CellLook look) {
    const wxGridCellAttr* column = m_columns[col].get();
    if (look.readOnly == ColumnIsReadOnly(col))
        look.readOnly.reset();
    if (look.editor && column && column->HasEditor() &&
        look.editor.get() == column->GetEditorPtr(nullptr, 0, 0).get())
        look.editor.reset(nullptr);
    const wxGridCellAttr* own = Own(row, col);
    if (!own && look.IsPlain())
        return;
    // The grid caches the attribute that it requested last.
    GetView()->RefreshAttr(row, col);
    if (own && HasMore(*own)) {
        const wxGridCellAttrPtr attr(GetAttr(row, col, wxGridCellAttr::Cell));
        attr->SetReadOnly(ColumnIsReadOnly(col));
        Apply(*attr, look);
    } else if (look.IsPlain()) {
        DropOwn(row, col);
    } else {
        StoreShared(row, col, look);
    }
}

bool PageTable::ColumnIsReadOnly(int col) const {
    const wxGridCellAttr* column = m_columns[col].get();
    return column && column->IsReadOnly();
}

void PageTable::SetReadOnly(int row, int col, bool readOnly) {
    if (!Own(row, col) && readOnly == ColumnIsReadOnly(col))
        return;
    CellLook look = LookOf(row, col);
    look.readOnly = readOnly;
    SetLook(row, col, look);
}

void PageTable::SetEditor(int row, int col, const wxGridCellEditorPtr& editor) {
    CellLook look = LookOf(row, col);
    look.editor = editor;
    SetLook(row, col, look);
}

void PageTable::SetPaint(int row, int col, const wxColour& colour) {
    CellLook look = LookOf(row, col);
    look.paint = colour == GetView()->GetDefaultCellBackgroundColour() ? wxColour() : colour;
    SetLook(row, col, look);
}

void PageTable::ForgetEditors(int row) {
    for (const int col : OwnColumns(row)) {
        CellLook look = LookOf(row, col);
        look.editor.reset(nullptr);
        GetView()->RefreshAttr(row, col);
        DropOwn(row, col);
        SetLook(row, col, look);
    }
}

void PageTable::ForgetEditors() {
    m_editors.clear();
    for (int row = 0; row < static_cast<int>(m_cells.size()); ++row)
        ForgetEditors(row);
    std::erase_if(m_shared, [](const auto& shared) { return shared.first.editor.get() != nullptr; });
}

void PageTable::ForgetCached(int row) {
    for (int col = 0; col < ColumnTotal; ++col)
        GetView()->RefreshAttr(row, col);
}

void PageTable::MoveLooks(int from, int to) {
    ForgetCached(from);
    ForgetCached(to);
    m_cells[static_cast<size_t>(to)] = std::exchange(m_cells[static_cast<size_t>(from)], {});
}

void PageTable::ForgetLooks(int row) {
    ForgetCached(row);
    m_cells[static_cast<size_t>(row)].clear();
}

wxGridCellAttr* PageTable::GetAttr(int row, int col, wxGridCellAttr::wxAttrKind kind) {
    wxGridCellAttr* const column = m_columns[col].get();
    auto* const own = const_cast<wxGridCellAttr*>(Own(row, col));
    switch (kind) {
    case wxGridCellAttr::Any:
        if (!own)
            return Retained(column);
        if (const wxColour text = TextColourOf(*own, *GetView()); column || text.IsOk()) {
            wxGridCellAttr* const merged = CloneOf(*own);
            merged->SetKind(wxGridCellAttr::Merged);
            if (text.IsOk())
                merged->SetTextColour(text);
            if (column)
                merged->MergeWith(column);
            return merged;
        }
        return Retained(own);
    case wxGridCellAttr::Cell:
        // The caller is about to change the attribute, and the grid may have cached a merged copy of it.
        GetView()->RefreshAttr(row, col);
        if (own && IsShared(own)) {
            const wxGridCellAttrPtr copy(CloneOf(*own));
            Store(row, col, copy);
            return Retained(copy.get());
        }
        return Retained(own);
    case wxGridCellAttr::Col:
        return Retained(column);
    default:
        return nullptr;
    }
}

void PageTable::SetAttr(wxGridCellAttr* attr, int row, int col) {
    GetView()->RefreshAttr(row, col);
    if (!attr)
        return DropOwn(row, col);
    attr->SetKind(wxGridCellAttr::Cell);
    Store(row, col, wxGridCellAttrPtr(attr));
}

void PageTable::SetColAttr(wxGridCellAttr* attr, int col) {
    if (attr)
        attr->SetKind(wxGridCellAttr::Col);
    m_columns[col].reset(attr);
}

bool PageTable::InsertRows(size_t row, size_t count) {
    // After the last row the base class calls AppendRows, which extends m_cells.
    if (row < m_cells.size())
        m_cells.insert(m_cells.begin() + static_cast<ptrdiff_t>(row), count, OwnCells());
    return wxGridStringTable::InsertRows(row, count);
}

bool PageTable::AppendRows(size_t count) {
    m_cells.resize(m_cells.size() + count);
    return wxGridStringTable::AppendRows(count);
}

bool PageTable::DeleteRows(size_t row, size_t count) {
    if (row < m_cells.size()) {
        const auto first = m_cells.begin() + static_cast<ptrdiff_t>(row);
        m_cells.erase(first, first + static_cast<ptrdiff_t>(std::min(count, m_cells.size() - row)));
    }
    return wxGridStringTable::DeleteRows(row, count);
}

PageTable& TableOf(const wxGrid* grid) {
    return static_cast<PageTable&>(*grid->GetTable());
}

void LockCell(wxGrid* grid, int row, int col, bool readOnly) {
    TableOf(grid).SetReadOnly(row, col, readOnly);
}

void PaintCell(wxGrid* grid, int row, int col, const wxColour& colour) {
    TableOf(grid).SetPaint(row, col, colour);
}
