#include "diagnostics/ReportLines.h"

#include "catalogue/TextNumbers.h"

namespace {

/// Pages that a line is written for.
enum class On { Every, P25, Module, SecondP25 };

/// Text that a line shows after the cell's text.
enum class Behind { Nothing, Semicolon, HexNumber };

struct CellLine {
    const char* tag;
    Column column;
    On pages;
    Behind behind = Behind::Nothing;
};

constexpr CellLine CellLines[] = {
    {"MFLG", MFLG, On::Every, Behind::HexNumber},
    {"MNUM", MNUM, On::Every},
    {"PRIM", PRIM, On::P25},
    {"SHAD", SHAD, On::P25},
    {"BAND", BAND, On::Module},
    {"SCAN", SCAN, On::Every},
    {"ZONE", ZONE, On::P25},
    {"DESC", DESC, On::Every},
    {"MODE", MODE, On::Every},
    {"RFRQ", RFRQ, On::Every},
    {"RSQL", RSQL, On::P25},
    // Intentional: nothing follows the semicolon.
    {"RNSV", RNSV, On::SecondP25, Behind::Semicolon},
    {"RTON", RTON, On::Every},
    {"RCOD", RCOD, On::Every},
    {"RTGP", RTGP, On::P25},
    {"RNAC", RNAC, On::P25},
    {"TFRQ", TFRQ, On::Every},
    {"TSQL", TSQL, On::P25},
    {"TTON", TTON, On::Every},
    {"TCOD", TCOD, On::Every},
    {"TTGP", TTGP, On::P25},
    {"TNAC", TNAC, On::P25},
    {"TIDC", TIDC, On::P25},
    {"SHD0", SHD0, On::P25},
    {"SHD1", SHD1, On::P25},
    {"SHD2", SHD2, On::P25},
    {"SHD3", SHD3, On::P25},
    {"SHD4", SHD4, On::P25},
    {"SHD5", SHD5, On::P25},
    {"SHD6", SHD6, On::P25},
    // Intentional: no line for RONL, not on KDAR pages either.
    // Intentional: the small letters in the tag.
    {"Tflg", TFLG, On::Every, Behind::HexNumber},
};

bool IsWritten(On pages, int type) {
    switch (pages) {
    case On::Every:
        return true;
    case On::P25:
        return RadioCatalogue::IsP25Type(type);
    case On::Module:
        return type == RadioCatalogue::MDLX;
    case On::SecondP25:
        return type == RadioCatalogue::NP25;
    }
    return false;
}

const char* YesOr(const char* no, uint32_t bit) {
    return bit ? "Yes" : no;
}

} // namespace

wxArrayString PageParameterLines(int page, int pages, const PageParameterRecord& parameters,
                                 const PageStringRecord& strings) {
    wxArrayString lines;
    lines.push_back(">-- Debug - Report Page Parameters -------------<");
    lines.push_back(wxString::Format(" . Page: %d of %d", page + 1, pages));
    lines.push_back(wxString::Format(" . Radio - Num: %d; Name: %s", parameters.Radio, strings.RadioName));
    lines.push_back(wxString::Format(" . Type - Num: %d; Name: %s", parameters.Type, strings.TypeName));
    lines.push_back(wxString::Format(" . Band - Num: %d; Name: %s; Index: %d", parameters.Band,
                                     strings.BandName, parameters.BandIndex));
    lines.push_back(wxString::Format(" . Grid - Rows: %d, Cols: %d\n", parameters.Rows, parameters.Cols));
    return lines;
}

wxArrayString RowLines(int type, int row, const wxArrayString& cells) {
    wxArrayString lines;
    lines.push_back(wxString::Format(">-- Data for Row %03d:", row));
    for (const CellLine& line : CellLines) {
        if (!IsWritten(line.pages, type))
            continue;
        const wxString& text = cells[static_cast<size_t>(line.column)];
        lines.push_back(wxString("  ") + line.tag + ": " + text);
        if (line.behind == Behind::HexNumber)
            lines.back() += wxString::Format("; 0x%02X", static_cast<unsigned>(ReadHex(text)));
        else if (line.behind == Behind::Semicolon)
            lines.back() += ";";
    }
    return lines;
}

wxArrayString ZoneLines(std::span<const int32_t> counters) {
    wxArrayString lines;
    lines.push_back(">-- Debug - Report P25 Page Zone Parameters -----------<");
    for (size_t zone = 0; zone < counters.size(); ++zone)
        lines.push_back(wxString::Format("  Zone: %d; Slot: %d", static_cast<int>(zone), counters[zone]));
    return lines;
}

wxArrayString OpModeLines(uint32_t modes) {
    wxArrayString lines;
    lines.push_back(">-- Debug - Report P25 Page OpMode Parameters ---------<");
    lines.push_back(wxString("  Op Mode: w - ") + YesOr(" No", modes & WideMode));
    lines.push_back(wxString("  Op Mode: n - ") + YesOr(" No", modes & NarrowMode));
    // Intentional: the small letter in " no".
    lines.push_back(wxString("  Op Mode: D - ") + YesOr(" no", modes & DigitalMode));
    return lines;
}
