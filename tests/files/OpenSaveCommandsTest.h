// Common base of the open and save tests: a user with menus and dialogs, and a folder.
#pragma once

#include "tests/files/ChannelFileTest.h"

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

inline constexpr const char* OpenQuestion = "This will overwrite all data on this page! Continue?";

class OpenSaveCommands : public ChannelFileTest {
protected:
    /// Opens a file of the folder by menu; box is the message expected after the file dialog.
    void OpenByMenu(const std::string& name, const std::string& box = "") {
        testbench::DialogScript script;
        script.ExpectMessage("Open File?", OpenQuestion);
        script.ExpectFile("Select Zelk file", m_folder.File(name));
        if (!box.empty())
            script.ExpectMessage("Error", box);
        Choose(IdOpen);
    }

    void WriteToFolder(const std::string& name, const std::string& bytes) {
        testbench::WriteFile(m_folder / name, bytes);
    }

    std::string ReadFromFolder(const std::string& name) const { return testbench::ReadFile(m_folder / name); }

    /// With the system's separator at its end.
    std::string FolderText() const { return m_folder.File(""); }

    /// Saves by menu; file is the file that the question names, and answer the reply to it.
    static void SaveOver(const std::string& file, int answer, int command = IdSave) {
        testbench::DialogScript script;
        ExpectReplaceQuestion(script, file, answer);
        Choose(command);
    }

    static void ExpectReplaceQuestion(testbench::DialogScript& script, const std::string& file, int answer) {
        script.Expect(testbench::DialogKind::Message, "Replace file?")
            .Message(file + " exists and was not opened on this page!")
            .Style(wxOK | wxCANCEL)
            .Answer(answer);
    }

    /// Saves under a name by menu and file dialog.
    void SaveAs(const std::string& name) {
        testbench::DialogScript script;
        script.ExpectFile("Save .zelk file...", m_folder.File(name));
        Choose(IdSaveAs);
    }

    void NamePage(const std::string& name) {
        PageStrings[CurrentPage].FileDir = FolderText();
        PageStrings[CurrentPage].FileName = name;
    }

    /// Adds a page of the radio, which becomes the current one.
    static void AddPageOf(int page, int radio) {
        SetPageParameters(MainFrame, page, radio, 0);
        CreateNewPage(MainFrame, page);
        UpdateStatus(MainFrame, page);
    }

    static std::string Utf8(const std::filesystem::path& path) {
        const std::u8string text = path.u8string();
        return {text.begin(), text.end()};
    }

    std::vector<std::string> Entries() const {
        std::vector<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(m_folder.Path()))
            names.push_back(Utf8(entry.path().filename()));
        std::sort(names.begin(), names.end());
        return names;
    }
};
