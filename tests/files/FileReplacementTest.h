// A file that is replaced, in a folder of the test.
#pragma once

#include "files/FileReplacement.h"
#include "robot/Files.h"
#include "robot/TempFolder.h"

#include <gtest/gtest.h>
#include <wx/string.h>

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

class ReplacedFile : public ::testing::Test {
protected:
    /// Returns the reason for a failure, empty on success.
    std::string Write(const std::filesystem::path& path, const std::string& bytes) {
        FileReplacement file;
        if (const std::error_code error = file.Open(wxString::FromUTF8(TextOf(path))))
            return error.message();
        const WriteResult result = file.Finish(bytes);
        EXPECT_FALSE(result.damaged);
        return result.error ? result.error.message() : "";
    }

    std::vector<std::string> Entries() const {
        std::vector<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(m_folder.Path()))
            names.push_back(TextOf(entry.path().filename()));
        std::sort(names.begin(), names.end());
        return names;
    }

    static std::string TextOf(const std::filesystem::path& path) {
        const std::u8string text = path.u8string();
        return {text.begin(), text.end()};
    }

    testbench::TempFolder m_folder{"zelk-replaced-file"};
};
