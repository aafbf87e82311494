// Exports by menu and file dialog.
#pragma once

#include "tests/files/CsvTest.h"

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

class CsvExportCommand : public CsvTest {
protected:
    std::vector<std::string> Entries() const {
        std::vector<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(m_folder.Path()))
            names.push_back(entry.path().filename().string());
        std::sort(names.begin(), names.end());
        return names;
    }

    /// Exports to a path that can't be written and expects the error box.
    void ExportInVain(const std::filesystem::path& path) {
        testbench::DialogScript script;
        script.ExpectFile("Export CSV file", path.string());
        ExpectErrorBox(script, "Export file", "Unable to write to selected File");
        Choose(IdExport);
    }
};
