// Common base of the tests of comma-separated lists.
#pragma once

#include "editing/CellMarks.h"
#include "editing/PageReset.h"
#include "files/CsvImport.h"
#include "tests/files/ChannelFileTest.h"
#include "tests/support/Keys.h"

#include <wx/ffile.h>

class CsvTest : public ChannelFileTest {
protected:
    /// Makes the page one of the type, with only its default row.
    static void EmptyPageOf(const std::string& type) {
        RetargetTo(type);
        EmptyDefaultMemories(CurrentPage);
    }

    int Import(const std::string& bytes) { return Import(Import_CSV, bytes); }
    int ImportKdar(const std::string& bytes) { return Import(Import_KDAR, bytes); }

    static void Select(std::initializer_list<int> rows) {
        CurrentGrid()->ClearSelection();
        for (int row : rows)
            CurrentGrid()->SelectRow(row, true);
    }

    /// Exports the selection by menu and file dialog. Returns the file's bytes, with a line feed for each
    /// line end of the system.
    std::string Export(const std::string& name = "list.csv") {
        testbench::DialogScript script;
        script.ExpectFile("Export CSV file", m_folder.File(name));
        Choose(IdExport);
        return testbench::ReadText(m_folder / name);
    }

    static bool IsPainted(int row, int col) {
        return CurrentGrid()->GetCellBackgroundColour(row, col) == FailColour;
    }

    /// Removes the paint of former imports.
    static void ForgetLooks() { ClearMarksOfRows(CurrentGrid()); }

private:
    int Import(int (*reader)(wxFFile&), const std::string& bytes) {
        testbench::WriteFile(m_folder / "import.csv", bytes);
        wxFFile file((m_folder / "import.csv").string(), "rb");
        return reader(file);
    }
};

inline std::string Repeat(const std::string& text, size_t count) {
    std::string all;
    all.reserve(text.size() * count);
    for (size_t i = 0; i < count; ++i)
        all += text;
    return all;
}
