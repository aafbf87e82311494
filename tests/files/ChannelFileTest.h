// Common base of the channel file tests.
#pragma once

#include "catalogue/TextNumbers.h"
#include "commands/CommandIds.h"
#include "editing/PageReset.h"
#include "files/XmlFile.h"
#include "files/ZelkFile_OpenSave.h"
#include "robot/Files.h"
#include "robot/Pump.h"
#include "robot/TempFolder.h"
#include "tests/support/Keys.h"
#include "tests/support/Modals.h"
#include "tests/support/ProcessorTime.h"
#include "tests/support/ZelkWindowTest.h"

#include <wx/menu.h>
#include <wx/msgdlg.h>
#include <wx/mstream.h>
#include <wx/statusbr.h>
#include <wx/xml/xml.h>

#include <algorithm>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

/// A radio of each type, by radio index and band slot.
struct TypedTarget {
    const char* type;
    const char* radio;
    const char* band;
    int radioIndex;
    int bandSlot;
    int rows;
};

inline constexpr TypedTarget Targets[] = {
    {"ANFM", "KRV-214", "FM 138-174", 3, 0, 102},   {"RP25", "KDRV-716", "FM 136-174", 6, 0, 232},
    {"NP25", "KDRV-716B", "FM 136-174", 7, 0, 502}, {"MDLX", "KDRV-4xxx", "K6 3-BAND", 17, 5, 500},
    {"O12", "ORV-12", "AM 118-138", 2, 0, 6},       {"KDAR", "KDAR-2000", "AM 118-138", 8, 0, 100},
    {"ANAM", "KRV-620", "AM 225-400", 10, 1, 200},  {"FXAM", "KRV-620", "AM 225-400", 10, 1, 200},
};

inline const TypedTarget& TargetOf(const std::string& type) {
    for (const TypedTarget& target : Targets)
        if (type == target.type)
            return target;
    throw std::runtime_error("no target of type " + type);
}

inline std::string Header(const std::string& type, const std::string& radio, const std::string& band) {
    return "<Version>1.0.0</Version><Date>14-Nov-2026</Date><Time>10:50:00</Time><FType>" + type +
           "</FType><FRadio>" + radio + "</FRadio><FBand>" + band + "</FBand>";
}

inline std::string HeaderOf(const std::string& type) {
    return Header(type, TargetOf(type).radio, TargetOf(type).band);
}

inline std::string Document(const std::string& content) {
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<ZelkMem>" + content + "</ZelkMem>\n";
}

/// A document of the type with the given memories.
inline std::string FileOf(const std::string& type, const std::string& memories) {
    return Document(HeaderOf(type) + memories);
}

inline std::string Memory(int row, const std::string& children) {
    return "<MEMORY row=\"" + std::to_string(row) + "\">" + children + "</MEMORY>";
}

class ChannelFileTest : public ZelkWindowTest {
protected:
    static constexpr int NotLoaded = -1;

    /// Loads the bytes from a file and opens them as the command does. Returns NotLoaded if they can't be
    /// loaded; the page is then unchanged.
    int Open(const std::string& bytes) {
        testbench::WriteFile(m_folder / "open.zelk", bytes);
        wxXmlDocument document;
        if (!LoadXmlFile((m_folder / "open.zelk").string(), document))
            return NotLoaded;
        ResetPage(CurrentPage);
        return OpenZelkFile(document, CurrentPage);
    }

    /// Saves the page under the given name and returns the file's bytes.
    std::string Save(const std::string& name = "saved") {
        PageStrings[CurrentPage].FileDir = m_folder.Path().string() + "/";
        PageStrings[CurrentPage].FileName = name;
        // Without a former file, no question is asked.
        std::filesystem::remove(m_folder / (name + ".zelk"));
        SaveZelkFile(CurrentPage, false);
        return testbench::ReadFile(m_folder / (name + ".zelk"));
    }

    /// Makes the page one of the type.
    static void RetargetTo(const std::string& type) {
        const TypedTarget& target = TargetOf(type);
        Retarget(target.radioIndex, target.bandSlot);
        // No radio of the catalogue has this type; only files do.
        if (type == "FXAM") {
            CurrentParameters().Type = RadioCatalogue::FXAM;
            CurrentParameters().Cols = 7;
            SetGridColumns(CurrentGrid(), RadioCatalogue::FXAM);
        }
    }

    /// Chooses a command of the menus.
    static void Choose(int command) {
        wxMenu* menu = nullptr;
        ASSERT_NE(MainFrame->GetMenuBar()->FindItem(command, &menu), nullptr);
        menu->SendEvent(command);
        testbench::PumpUntilIdle();
    }

    /// Imports a file of the folder by menu; box is the text of the report.
    void ImportByMenu(const std::string& name, const testbench::TextRule& box) {
        testbench::DialogScript script;
        script.ExpectFile("Import file", (m_folder / name).string());
        // The toolkit adds its icon.
        script.Expect(testbench::DialogKind::Message, "Import File")
            .Message(box)
            .Style(wxOK | wxCENTRE | wxICON_INFORMATION);
        Choose(IdImport);
    }

    /// Expects a box that reports an error.
    static void ExpectErrorBox(testbench::DialogScript& script, const testbench::TextRule& caption,
                               const testbench::TextRule& message) {
        script.Expect(testbench::DialogKind::Message, caption)
            .Message(message)
            .Style(wxOK | wxCENTRE | wxICON_ERROR);
    }

    /// Types into a cell and leaves its editor open.
    static void TypeWithoutEnd(int row, int column, const std::string& text) {
        wxGrid* grid = CurrentGrid();
        testbench::ShowAndFocus(*MainFrame);
        grid->GoToCell(row, column);
        grid->SetFocus();
        testbench::PumpUntilIdle();
        testbench::TypeText(text);
        ASSERT_TRUE(grid->IsCellEditControlShown());
    }

    /// Expects these texts in cells of a row.
    static void ExpectTexts(int row, const std::vector<std::pair<int, std::string>>& cells) {
        for (const auto& [column, text] : cells)
            EXPECT_EQ(Text(row, column), text) << ColumnTag[column] << " of row " << row;
    }

    static void EmptyRow(int row) {
        for (int col = 0; col < ColumnTotal; ++col)
            SetCell(row, col, "");
    }

    static std::string Text(int row, int col) { return Cell(row, col).utf8_string(); }

    static std::string ToolTip() { return MainFrame->m_statusBar->GetToolTipText().utf8_string(); }

    static std::string Status(int field) {
        return MainFrame->m_statusBar->GetStatusText(field).utf8_string();
    }

    static int TakenSlots() {
        int taken = 0;
        for (int zone = 0; zone < ZonesPerPage; ++zone)
            taken += ZoneSlotsOf(CurrentPage)[zone];
        return taken;
    }

    /// The bytes of a file, with date and time replaced by "D" and "T" if they have the right form.
    static std::string Masked(std::string bytes) {
        Mask(bytes, "<Date>", "00-Aaa-0000", "D");
        Mask(bytes, "<Time>", "00:00:00", "T");
        return bytes;
    }

private:
    /// Replaces the text after mark if it has the form: 0 for a digit, A and a for letters.
    static void Mask(std::string& bytes, const std::string& mark, const std::string& form, const char* mask) {
        const size_t start = bytes.find(mark) + mark.size();
        std::string found = bytes.substr(start, form.size());
        for (char& c : found)
            c = c >= '0' && c <= '9' ? '0' : c >= 'A' && c <= 'Z' ? 'A' : c >= 'a' && c <= 'z' ? 'a' : c;
        if (found == form && bytes[start + form.size()] == '<')
            bytes.replace(start, form.size(), mask);
    }

protected:
    testbench::TempFolder m_folder{"zelk-channel-file"};
};
