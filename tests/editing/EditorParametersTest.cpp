// Parameters of the editor of each cell, on a page of each of the eight radio types.
#include "editing/BandCell.h"
#include "editing/ChoiceCells.h"
#include "editing/DescriptionCell.h"
#include "editing/DigitalSquelchCell.h"
#include "editing/FrequencyCell.h"
#include "editing/MemoryNumberCell.h"
#include "editing/ZoneCell.h"
#include "tests/editing/CellTools.h"

#include <wx/spinctrl.h>
#include <wx/textctrl.h>

#include <map>

namespace {

const std::string Tones =
    "OFF 67.0 71.9 74.4 77.0 79.7 82.5 85.4 88.5 91.5 94.8 97.4 100.0 103.5 107.2 110.9 114.8 118.8 123.0 "
    "127.3 131.8 136.5 141.3 146.2 151.4 156.7 162.2 167.9 173.8 179.9 186.2 192.8 203.5 33.0 35.4 36.6 "
    "37.9 39.6 44.4 47.5 49.2 51.2 53.0 54.9 56.8 58.8 63.0 69.3 150.0 165.5 171.3 177.3 183.5 189.9 196.6 "
    "199.5 206.5 210.7 218.1 225.7 229.1 233.6 241.8 250.3 OFF";
const std::string CtcssTones =
    "67.0 69.3 71.9 74.4 77.0 79.7 82.5 85.4 88.5 91.5 94.8 97.4 100.0 103.5 107.2 110.9 114.8 118.8 123.0 "
    "127.3 131.8 136.5 141.3 146.2 151.4 156.7 162.2 167.9 173.8 179.9 186.2 192.8 203.5 210.7 218.1 225.7 "
    "233.6 241.8 250.3 206.5 229.1 254.8";
const std::string CodesWithoutOff =
    "023 025 026 031 032 043 047 051 054 065 071 072 073 074 114 115 116 125 131 132 134 143 152 155 156 162 "
    "165 172 174 205 223 226 243 244 245 251 261 263 265 271 306 311 315 331 343 346 351 364 365 371 411 412 "
    "413 423 431 432 445 464 465 466 503 506 516 532 546 565 606 612 624 627 631 632 654 662 664 703 712 723 "
    "731 732 734 743 754";
const std::string Codes = "OFF " + CodesWithoutOff;

// Choices of each kind of editor. Bars separate band names, as these contain blanks.
std::string Plain(const std::string& choices) {
    return "choice: " + choices;
}
std::string Linked(const std::string& choices) {
    return "linked choice: " + choices;
}

using Editors = std::map<int, std::string>;

/// The editors of a page that isn't P25.
Editors Analog(const std::string& number, const std::string& description, const std::string& frequency) {
    return {{1, number},         {5, "boxes"},       {7, description},    {8, Plain("W N")},
            {9, frequency},      {16, frequency},    {12, Linked(Tones)}, {18, Linked(Tones)},
            {13, Linked(Codes)}, {19, Linked(Codes)}};
}

/// The editors, with some replaced by others.
Editors With(Editors editors, const Editors& others) {
    for (const auto& [col, editor] : others)
        editors[col] = editor;
    return editors;
}

/// On AM pages other than the module's, tones have no editor of their own.
const Editors NoTones = {{12, "text"}, {18, "text"}};

Editors P25(const std::string& number, const std::string& zones, const std::string& frequency) {
    return {{1, number},
            {3, "text of 4"},
            {5, Plain("Y N")},
            {6, "zone: " + zones},
            {7, "description of 8 in mode 1"},
            {8, Linked("w n D")},
            {9, frequency},
            {10, Linked("x t c")},
            {12, Linked(CtcssTones)},
            {13, Linked(CodesWithoutOff)},
            {14, "hexadecimal of 4, 0 to 65535"},
            {15, "hexadecimal of 3, 0 to 4095"},
            {16, frequency},
            {17, Linked("x t c")},
            {18, Linked(CtcssTones)},
            {19, Linked(CodesWithoutOff)},
            {20, "hexadecimal of 4, 0 to 65535"},
            {21, "hexadecimal of 3, 0 to 4095"},
            {22, "number 0 to 9999999"}};
}

struct Page {
    const char* name;
    int radio, slot, type;
    Editors editors;
};

const std::vector<Page>& Pages() {
    const char* const nine = "description of 9 in mode 0";
    static const std::vector<Page> pages = {
        {"KRV-21, ANFM", Krv21, 0, 0, Analog("memory 0 to 122", nine, "frequency of 7, band 0, step 2500")},
        {"KRV-47, ANFM", Krv47, 0, 0, Analog("memory 0 to 122", nine, "frequency of 7, band 1, step 2500")},
        {"KRV-214, ANFM", Krv214, 0, 0, Analog("memory 0 to 102", nine, "frequency of 8, band 5, step 2500")},
        {"KRV-305, ANFM", Krv305, 0, 0, Analog("memory 0 to 122", nine, "frequency of 8, band 7, step 2500")},
        {"KDRV-716, RP25", Kdrv716, 0, 1,
         P25("memory 0 to 232", "1 2 3 4 5 6 7 8 9 10 11 12 13 14 15", "frequency of 8, band 4, step 2500")},
        {"KDRV-716B, NP25", Kdrv716B, 0, 2,
         With(P25("memory 0 to 502", "1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16 A C E F H I K L M N P T U V W",
                  "frequency of 9, band 4, step 1250"),
              {{11, "number 0 to 15"}})},
        {"KDRV-4xxx, MDLX", Kdrv4xxx, ModuleSlot, 3,
         With(Analog("memory 0 to 500", "description of 9 in mode 1", "frequency of 7, band 0, step 2500"),
              {{4, "band: FM 30-50|AM 108-138|AM 225-400"}})},
        {"ORV-12, O12", Orv12, 0, 4,
         With(Analog("memory 0 to 6", nine, "frequency of 7, band 3, step 8333"), NoTones)},
        {"KDAR-2000, KDAR", Kdar2000, 0, 5,
         With(With(Analog("memory 0 to 100", "description of 8 in mode 5",
                          "frequency of 7, band 3, step 8333"),
                   NoTones),
              {{5, Plain("Y N")}, {30, Plain("Y N")}})},
        {"KRV-620, ANAM", Krv620, 1, 6,
         With(Analog("memory 0 to 200", nine, "frequency of 8, band 6, step 2500"), NoTones)},
        {"KDRV-8400, ANAM", Kdrv8400, 1, 6,
         With(Analog("memory 0 to 200", nine, "frequency of 7, band 3, step 8333"), NoTones)},
        // No radio has this type, but files may.
        {"KRV-47, FXAM", Krv47, 0, 7, Analog("memory 0 to 122", nine, "frequency of 7, band 1, step 2500")},
        {"KRV-620, FXAM", Krv620, 1, 7,
         With(Analog("memory 0 to 200", nine, "frequency of 8, band 6, step 2500"), NoTones)},
    };
    return pages;
}

class EditorParameters : public CellTest {
protected:
    static void Become(int radio, int slot, int type) {
        Retarget(radio, slot);
        CurrentParameters().Type = type;
        SetPageEditors(CurrentPage);
    }

    static std::string Joined(const wxArrayString& texts, char between) {
        std::string joined;
        for (const wxString& text : texts)
            joined += (joined.empty() ? "" : std::string(1, between)) + text.utf8_string();
        return joined;
    }

    static std::string DescribeChoice(const wxGridCellEditor& editor, const wxComboBox& combo) {
        std::string choices =
            Joined(combo.GetStrings(), dynamic_cast<const MDLXBandChoiceEditor*>(&editor) ? '|' : ' ');
        if (!combo.HasFlag(wxCB_READONLY))
            choices += " or any other";
        if (dynamic_cast<const MDLXBandChoiceEditor*>(&editor))
            return "band: " + choices;
        if (dynamic_cast<const P25ZoneEditor*>(&editor))
            return "zone: " + choices;
        return dynamic_cast<const ZelkChoiceEditor*>(&editor) ? Linked(choices) : Plain(choices);
    }

    static std::string DescribeText(const wxGridCellEditor& editor, wxTextCtrl& control) {
        // A text that is too long would be refused completely, so it is entered in pieces.
        for (int i = 0; i < 40; ++i)
            control.AppendText("1");
        const size_t width = control.GetValue().length();
        const wxValidator* const rules = control.GetValidator();
        const std::string of = wxString::Format(" of %zu", width).utf8_string();
        if (const auto* frequency = dynamic_cast<const FrequencyValidator*>(rules);
            frequency && dynamic_cast<const FrequencyEditor*>(&editor))
            return wxString::Format("frequency%s, band %d, step %d", of, frequency->GetBand(),
                                    frequency->GetStep())
                .utf8_string();
        if (const auto* description = dynamic_cast<const ZelkDescriptionValidator*>(rules);
            description && dynamic_cast<const ZelkDescriptionEditor*>(&editor))
            return wxString::Format("description%s in mode %d", of, description->GetMode()).utf8_string();
        if (const auto* digits = dynamic_cast<const DigitalSquelchValidator*>(rules);
            digits && dynamic_cast<const DigitalSquelchEditor*>(&editor))
            return wxString::Format("hexadecimal%s, %d to %d", of, digits->GetMin(), digits->GetMax())
                .utf8_string();
        return "text" + (width < 40 ? of : "");
    }

    /// A description of the cell's editor.
    static std::string Describe(int row, int col) {
        wxGridCellEditor& editor = *EditorAt(row, col);
        if (dynamic_cast<wxGridCellActivatableEditor*>(&editor))
            return "boxes";
        editor.Create(Grid()->GetGridWindow(), wxID_ANY, new wxEvtHandler);
        std::string words = "unknown";
        if (auto* combo = dynamic_cast<wxComboBox*>(editor.GetWindow()))
            words = DescribeChoice(editor, *combo);
        else if (auto* memory = dynamic_cast<ZelkMemoryNumberEditor*>(&editor))
            words = wxString::Format("memory %d to %d", memory->GetMin(), memory->GetMax()).utf8_string();
        else if (auto* spin = dynamic_cast<wxSpinCtrl*>(editor.GetWindow()))
            words = wxString::Format("number %d to %d", spin->GetMin(), spin->GetMax()).utf8_string();
        else if (auto* control = dynamic_cast<wxTextCtrl*>(editor.GetWindow()))
            words = DescribeText(editor, *control);
        editor.Destroy();
        return words;
    }
};

} // namespace

TEST_F(EditorParameters, AreThoseOfTheRadioInEveryCell) {
    for (const Page& page : Pages()) {
        SCOPED_TRACE(page.name);
        TearDown();
        SetUp();
        AddFreshPage(page.radio, page.slot, page.type);
        const int rows = CurrentParameters().Rows;
        for (int row : {0, 1, rows / 2, rows - 1, rows})
            for (int col = 0; col < 32; ++col) {
                const auto found = page.editors.find(col);
                EXPECT_EQ(Describe(row, col), found == page.editors.end() ? "text" : found->second)
                    << row << ", " << col;
            }
    }
}

TEST_F(EditorParameters, OfFrequenciesOfTheModuleAreThoseOfTheRowsBand) {
    Become(Kdrv4xxx, ModuleSlot, 3);
    // A row without transfer flags uses the band of the default row.
    for (int row : {3, 4, 5, 6})
        SetCell(row, TFLG, "A0");
    SetCell(3, BAND, "FM 30-50");
    SetCell(4, BAND, "AM 108-138");
    SetCell(5, BAND, "AM 225-400");
    SetCell(6, BAND, "no band");
    SetPageEditors(CurrentPage);
    for (int col : {9, 16}) {
        EXPECT_EQ(Describe(3, col), "frequency of 7, band 0, step 2500");
        EXPECT_EQ(Describe(4, col), "frequency of 7, band 2, step 8333");
        EXPECT_EQ(Describe(5, col), "frequency of 8, band 6, step 2500");
        EXPECT_EQ(Describe(6, col), "frequency of 7, band 0, step 2500");
    }
    EXPECT_EQ(Describe(5, 12), Linked(Tones));
    EXPECT_EQ(Describe(5, 18), Linked(Tones));
}

TEST_F(EditorParameters, OfTheSecondModuleOfferSevenBands) {
    Become(Kdrv4xxx, ModuleSlot, 3);
    CurrentParameters().Band = RadioCatalogue::K7Module;
    SetPageEditors(CurrentPage);
    for (int row : {0, 1, 500})
        EXPECT_EQ(Describe(row, 4),
                  "band: FM 30-50|FM 66-88|AM 108-138|FM 136-174|AM 225-400|FM_403-512|FM 7xx-8xx")
            << row;
}

TEST_F(EditorParameters, OfDigitalRowsAreDigitalSquelches) {
    for (int radio : {Kdrv716, Kdrv716B}) {
        Become(radio, 0, radio - 5);
        SetCell(4, MODE, "D");
        SetCell(5, MODE, "D");
        SetCell(6, MODE, "n");
        SetCell(5, MFLG, "03");
        SetCell(6, MFLG, "03");
        SetPageEditors(CurrentPage);
        EXPECT_EQ(Describe(4, 10), Linked("m n g")) << radio;
        EXPECT_EQ(Describe(4, 17), Linked("g i -")) << radio;
        EXPECT_EQ(Describe(5, 10), Linked("m n g")) << radio;
        EXPECT_EQ(Describe(5, 17), Linked("g -")) << radio;
        EXPECT_EQ(Describe(6, 10), Linked("x t c")) << radio;
        EXPECT_EQ(Describe(6, 17), Linked("x t c")) << radio;
    }
}
