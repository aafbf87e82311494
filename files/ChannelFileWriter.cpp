#include "files/ChannelFileWriter.h"

#include "catalogue/PageModel.h"
#include "catalogue/TextNumbers.h"
#include "catalogue/Version.h"
#include "files/ChannelFileFields.h"

#include <wx/datetime.h>
#include <wx/grid.h>
#include <wx/xml/xml.h>

#include <algorithm>

using namespace ChannelFile;

namespace {

/// Adds an element with a text before the other children of parent, which owns it.
wxXmlNode* PrependElement(wxXmlNode* parent, const wxString& name, const wxString& text) {
    auto* element = new wxXmlNode(parent, wxXML_ELEMENT_NODE, name);
    new wxXmlNode(element, wxXML_TEXT_NODE, wxString(), text);
    return element;
}

bool IsXmlCharacter(wxUint32 c) {
    return c >= 0x20 ? !(c >= 0xD800 && c <= 0xDFFF) && c != 0xFFFE && c != 0xFFFF
                     : c == '\t' || c == '\n' || c == '\r';
}

/// Drops the characters that XML forbids; a file with one of them could not be opened again.
wxString WithoutForbidden(const wxString& text) {
    wxString allowed;
    for (const wxUniChar c : text)
        if (IsXmlCharacter(c.GetValue()))
            allowed += c;
    return allowed;
}

/// Writes the rows of one page, last row and last cell first, because each new element is
/// prepended.
class PageWriter {
public:
    PageWriter(int page, wxXmlNode* root)
        : m_root(root), m_grid(PageGrid[page]), m_type(PageParameters[page].Type) {
        for (int i = 0; i < CellTotal; ++i)
            m_names[i] = CellElements[i].names.name;
    }

    void WriteRow(int row) {
        auto* memory = new wxXmlNode(m_root, wxXML_ELEMENT_NODE, MemoryName);
        memory->AddAttribute(RowAttribute, wxString::Format("%i", row));
        for (int i = CellTotal - 1; i >= 0; --i)
            if (IsWritten(CellElements[i], m_type))
                WriteCell(memory, row, i);
    }

private:
    void WriteCell(wxXmlNode* memory, int row, int index) {
        const int column = CellElements[index].column;
        const wxString text = ChannelFileText(column, m_grid->GetCellValue(row, column), m_number);
        wxXmlNode* element = PrependElement(memory, m_names[index], text);
        if (column == SCAN)
            element->AddAttribute(ScanAttribute, TypeTextsOf[m_type].scanFamily);
    }

    wxXmlNode* m_root;
    wxGrid* m_grid;
    int m_type;
    int m_number = 0;
    wxString m_names[CellTotal];
};

void WriteHeader(int page, wxXmlNode* root) {
    const PageParameterRecord& parameters = PageParameters[page];
    const wxDateTime now = wxDateTime::Now();
    const wxString texts[FieldTotal] = {
        ProgramVersion,
        now.Format("%d-%b-%Y"),
        now.Format("%X"),
        TypeTextsOf[parameters.Type].fileType,
        RadioCatalogue::RadioName[parameters.Radio],
        RadioCatalogue::BandName[parameters.Band],
    };
    for (int field = FieldTotal - 1; field >= 0; --field)
        PrependElement(root, HeaderNames[field].name, texts[field]);
}

} // namespace

wxString ChannelFileText(int column, const wxString& text, int& number) {
    switch (column) {
    case MNUM:
        number = ReadNumber(text).value_or(number);
        return NumberText(number);
    case RTON:
    case TTON:
        if (text == "00" || text == "64")
            return "OFF";
        break;
    case RCOD:
    case TCOD:
        if (text == "000")
            return "OFF";
        break;
    default:
        break;
    }
    for (const wxUniChar c : text)
        if (!IsXmlCharacter(c.GetValue()))
            return WithoutForbidden(text);
    return text;
}

std::vector<int> BuildChannelFile(int page, wxXmlDocument& document) {
    auto* root = new wxXmlNode(wxXML_ELEMENT_NODE, RootName);
    document.SetRoot(root); // the document owns it
    PageWriter writer(page, root);
    std::vector<int> leftOut;
    for (int row = PageParameters[page].Rows; row >= 0; --row) {
        if (RowIsComplete(row))
            writer.WriteRow(row);
        else if (RowHasData(row))
            leftOut.push_back(row);
    }
    WriteHeader(page, root);
    std::reverse(leftOut.begin(), leftOut.end());
    return leftOut;
}
