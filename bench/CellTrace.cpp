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
            grid->SetCellValue(step.row, step.col, step.text);
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

TracingTable::TracingTable(wxGridTableBase& other)
    : wxGridStringTable(other.GetNumberRows(), other.GetNumberCols()) {
    for (int row = 0; row < other.GetNumberRows(); ++row)
        for (int col = 0; col < other.GetNumberCols(); ++col)
            wxGridStringTable::SetValue(row, col, other.GetValue(row, col));
}

CellTrace TracingTable::TakeTrace() {
    return std::exchange(m_trace, {});
}

wxString TracingTable::GetValue(int row, int col) {
    m_trace.steps.push_back({CellTrace::Kind::Read, row, col, {}});
    return wxGridStringTable::GetValue(row, col);
}

void TracingTable::SetValue(int row, int col, const wxString& text) {
    m_trace.steps.push_back({CellTrace::Kind::Write, row, col, text});
    wxGridStringTable::SetValue(row, col, text);
}

void TracingTable::Clear() {
    m_trace.steps.push_back({CellTrace::Kind::Clear, 0, 0, {}});
    wxGridStringTable::Clear();
}

bool TracingTable::InsertRows(size_t row, size_t count) {
    m_trace.steps.push_back(
        {CellTrace::Kind::InsertRows, static_cast<int>(row), static_cast<int>(count), {}});
    return wxGridStringTable::InsertRows(row, count);
}

bool TracingTable::AppendRows(size_t count) {
    m_trace.steps.push_back({CellTrace::Kind::AppendRows, 0, static_cast<int>(count), {}});
    return wxGridStringTable::AppendRows(count);
}

bool TracingTable::DeleteRows(size_t row, size_t count) {
    m_trace.steps.push_back(
        {CellTrace::Kind::DeleteRows, static_cast<int>(row), static_cast<int>(count), {}});
    return wxGridStringTable::DeleteRows(row, count);
}
