#include "catalogue/TextSizes.h"

#include "catalogue/ChoiceLists.h"
#include "catalogue/ColumnTables.h"
#include "catalogue/RadioCatalogue.h"
#include "catalogue/ScanBoxes.h"

#include <wx/dcclient.h>
#include <wx/grid.h>

#include <algorithm>
#include <initializer_list>
#include <span>
#include <unordered_map>

using namespace RadioCatalogue;

namespace {

constexpr int UsualRowHeight = 23;
/// Height of a line of text for which the usual row height was chosen.
constexpr int UsualLineHeight = 17;
/// Pixels beside a text in its cell, at the usual height of a line: sum of both sides.
constexpr int UsualMargin = 5;

/// Measures texts in one font of a grid. Many columns hold the same texts, and measuring one takes 20 µs.
class Measure {
public:
    Measure(const wxGrid* grid, const wxFont& font) : m_paper(const_cast<wxGrid*>(grid)) {
        m_paper.SetFont(font);
    }

    wxSize SizeOf(const wxString& text) {
        const auto [known, isNew] = m_sizes.try_emplace(text);
        if (isNew)
            known->second = m_paper.GetTextExtent(text);
        return known->second;
    }

    int WidestOf(std::span<const char* const> texts) {
        int widest = 0;
        for (const char* text : texts)
            widest = std::max(widest, SizeOf(text).x);
        return widest;
    }
    int WidestOf(std::initializer_list<const char*> texts) {
        return WidestOf(std::span(texts.begin(), texts.size()));
    }

    /// Returns the width of a text of count characters, all of them the widest one from first to last.
    int WidestRun(char first, char last, size_t count) {
        const auto widthOf = [this](char character, size_t times) {
            return SizeOf(wxString(wxUniChar(character), times)).x;
        };
        int widestOne = 0, widest = 0;
        for (char character = first; character <= last; ++character)
            widestOne = std::max(widestOne, widthOf(character, 1));
        // A width is rounded, so a run of a character that seems narrower by a pixel can be the wider one.
        for (char character = first; character <= last; ++character)
            if (widthOf(character, 1) >= widestOne - 1)
                widest = std::max(widest, widthOf(character, count));
        return widest;
    }

private:
    wxClientDC m_paper;
    std::unordered_map<wxString, wxSize> m_sizes;
};

int Digits(Measure& cells, size_t count) {
    return cells.WidestRun('0', '9', count);
}

int HexDigits(Measure& cells, size_t count) {
    return std::max(Digits(cells, count), cells.WidestRun('A', 'F', count));
}

int ScanBoxes(Measure& cells) {
    const auto widthOf = [&cells](char32_t box) {
        const wxSize text = cells.SizeOf(wxString(wxUniChar(box), ScanBoxCount));
        return std::max(text.x, ScanBoxCount * ScanBoxWidth(text));
    };
    return std::max(widthOf(EmptyScanBox), widthOf(CrossedScanBox));
}

/// Returns the width of the widest text that a cell of the column can hold. A description can be anything;
/// that of wide characters is the widest.
int WidestText(Measure& cells, int type, int col) {
    const bool shortTexts = IsP25Type(type) || type == KDAR;
    switch (col) {
    case MNUM:
        return std::max(Digits(cells, 3), cells.WidestOf({"DEF", "GD1", "GD2"}));
    case SHAD:
        return cells.SizeOf("S-").x + Digits(cells, 3);
    case BAND:
        return std::max(cells.WidestOf(MdlxBands3), cells.WidestOf(MdlxBands8));
    case SCAN:
        return shortTexts ? cells.WidestOf(ScanYesNo) : ScanBoxes(cells);
    case ZONE:
        return cells.WidestOf(ZoneNames32);
    case DESC:
        return cells.WidestRun(' ', '~', shortTexts ? 8 : 9);
    case MODE:
        return std::max({cells.WidestOf(AnalogModes), cells.WidestOf(P25Modes), cells.SizeOf("n/a").x});
    case RFRQ:
    case TFRQ:
        return std::max(Digits(cells, 8) + cells.SizeOf(".").x, cells.SizeOf("n/a").x);
    case RSQL:
    case TSQL:
        return std::max({cells.WidestOf(TxAnalogSquelch), cells.WidestOf(RxDigitalSquelch),
                         cells.WidestOf(TxDigitalSquelch)});
    case RNSV:
        return Digits(cells, 2);
    case RTON:
    case TTON:
        return std::max({cells.WidestOf(ToneTexts), cells.WidestOf(CtcssTexts), cells.SizeOf("n/a").x});
    case RCOD:
    case TCOD:
        return std::max(cells.WidestOf(CodeTexts), cells.SizeOf("n/a").x);
    case RTGP:
    case TTGP:
        return HexDigits(cells, 4);
    case RNAC:
    case TNAC:
        return HexDigits(cells, 3);
    case TIDC:
        return Digits(cells, 8);
    case RONL:
        return cells.WidestOf(ScanYesNo);
    default:
        return 0;
    }
}

/// The sizes that texts need in the fonts of a grid.
struct Sizes {
    wxFont cellFont, labelFont;
    wxSize sample; ///< the same font has another size when the desktop's texts are scaled
    TypeByColumn<int> widths{};
    int rowHeight = 0;
};

Sizes MeasureSizes(const wxGrid* grid) {
    Measure cells(grid, grid->GetDefaultCellFont()), labels(grid, grid->GetLabelFont());
    Sizes sizes{grid->GetDefaultCellFont(), grid->GetLabelFont(), cells.SizeOf("W0")};
    const int line = std::max(sizes.sample.y, labels.SizeOf("W0").y);
    const int margin = std::max(line * UsualMargin / UsualLineHeight, UsualMargin);
    bool suffices = line + 2 <= UsualRowHeight;
    for (int type = 0; type < TypeTotal; ++type)
        for (int col = 0; col < ColumnTotal; ++col) {
            const int stated = ColumnWidth[type][col];
            if (stated == 0)
                continue;
            const int needed =
                margin + std::max(labels.SizeOf(ColumnHeading[type][col]).x, WidestText(cells, type, col));
            sizes.widths[type][col] = std::max(stated, needed);
            suffices = suffices && (col == DESC || needed <= stated);
        }
    sizes.rowHeight = std::max(UsualRowHeight, line * UsualRowHeight / UsualLineHeight);
    // Where the stated sizes suffice for all texts but the widest descriptions, all of them stand.
    if (suffices) {
        sizes.widths = ColumnWidth;
        sizes.rowHeight = UsualRowHeight;
    }
    return sizes;
}

const Sizes& SizesFor(const wxGrid* grid) {
    static Sizes sizes;
    const wxSize sample = Measure(grid, grid->GetDefaultCellFont()).SizeOf("W0");
    if (sizes.rowHeight == 0 || sizes.cellFont != grid->GetDefaultCellFont() ||
        sizes.labelFont != grid->GetLabelFont() || sizes.sample != sample)
        sizes = MeasureSizes(grid);
    return sizes;
}

} // namespace

int ColumnWidthFor(const wxGrid* grid, int type, int col) {
    return SizesFor(grid).widths[type][col];
}

int RowHeightFor(const wxGrid* grid) {
    return SizesFor(grid).rowHeight;
}

int FieldHeightFor(const wxWindow* field) {
    constexpr int edges = 10; // above and below the text together
    return std::max(field->GetBestSize().y, field->GetTextExtent("0").y + edges);
}
