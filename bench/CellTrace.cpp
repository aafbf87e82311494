#include "bench/CellTrace.h"

#include <benchmark/benchmark.h>

#include <utility>

void CellTrace::Replay(wxGrid* grid) const {
    for (const Step& step : steps) {
        switch (step.kind) {
        case Kind::Read: {
            const wxString text = grid->GetCellValue(step.row, step.col);
            benchmark::DoNotOptimize(&text);
            break;
        }
        case Kind::Write:
            grid->SetCellValue(step.row, step.col, texts[step.text]);
            break;
        case Kind::InsertRows:
            grid->InsertRows(step.row, step.col);
            break;
        case Kind::DeleteRows:
            grid->DeleteRows(step.row, step.col);
            break;
        case Kind::AppendRows:
            grid->AppendRows(step.col);
            break;
        case Kind::Clear:
            grid->ClearGrid();
            break;
        }
    }
}

TracingTable::TracingTable(wxGridTableBase& other) : PageTable(other.GetNumberRows()) {
    for (int row = 0; row < other.GetNumberRows(); ++row)
        for (int col = 0; col < other.GetNumberCols(); ++col)
            PageTable::SetValue(row, col, other.GetValue(row, col));
}

CellTrace TracingTable::TakeTrace() {
    m_positions.clear();
    return std::exchange(m_trace, {});
}

void TracingTable::Note(CellTrace::Kind kind, size_t row, size_t col) {
    m_trace.steps.push_back({kind, static_cast<int16_t>(row), static_cast<int16_t>(col)});
}

wxString TracingTable::GetValue(int row, int col) {
    Note(CellTrace::Kind::Read, static_cast<size_t>(row), static_cast<size_t>(col));
    return PageTable::GetValue(row, col);
}

void TracingTable::SetValue(int row, int col, const wxString& text) {
    // The grid reads a cell before it writes it, and does so by itself in a replay.
    if (!m_trace.steps.empty()) {
        const CellTrace::Step& last = m_trace.steps.back();
        if (last.kind == CellTrace::Kind::Read && last.row == row && last.col == col)
            m_trace.steps.pop_back();
    }
    Note(CellTrace::Kind::Write, static_cast<size_t>(row), static_cast<size_t>(col));
    const auto [position, isNew] = m_positions.try_emplace(text, static_cast<uint16_t>(m_trace.texts.size()));
    if (isNew)
        m_trace.texts.push_back(text);
    m_trace.steps.back().text = position->second;
    PageTable::SetValue(row, col, text);
}

void TracingTable::Clear() {
    Note(CellTrace::Kind::Clear, 0, 0);
    PageTable::Clear();
}

bool TracingTable::InsertRows(size_t row, size_t count) {
    Note(CellTrace::Kind::InsertRows, row, count);
    return PageTable::InsertRows(row, count);
}

bool TracingTable::AppendRows(size_t count) {
    Note(CellTrace::Kind::AppendRows, 0, count);
    return PageTable::AppendRows(count);
}

bool TracingTable::DeleteRows(size_t row, size_t count) {
    Note(CellTrace::Kind::DeleteRows, row, count);
    return PageTable::DeleteRows(row, count);
}
