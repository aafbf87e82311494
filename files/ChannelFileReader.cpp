#include "files/ChannelFileReader.h"

#include "catalogue/PageModel.h"
#include "catalogue/TextNumbers.h"
#include "catalogue/ZoneSlots.h"
#include "editing/Shadows.h"
#include "editing/ZelkEdit.h"
#include "editing/ZelkEditors.h"
#include "files/CellText.h"
#include "files/ChannelFileFields.h"

#include <wx/grid.h>
#include <wx/xml/xml.h>

#include <array>
#include <vector>

namespace ChannelFile {

namespace {

/// Returns the node itself or the first element after it, null if there is none. Comments and stray texts
/// are not elements.
const wxXmlNode* ElementFrom(const wxXmlNode* node) {
    while (node && node->GetType() != wxXML_ELEMENT_NODE)
        node = node->GetNext();
    return node;
}

const wxXmlNode* FirstElement(const wxXmlNode* parent) {
    return ElementFrom(parent->GetChildren());
}

const wxXmlNode* NextElement(const wxXmlNode* element) {
    return ElementFrom(element->GetNext());
}

/// Returns the radio type of a file, -1 if it is unknown or not of the radio's family. Files of two types
/// have an empty text; their radio and band determine the type.
int TypeOf(const wxString& text, int radio, int band) {
    const int native = RadioCatalogue::GetRadioType(radio, band);
    if (text.empty())
        return native;
    const int type = RadioCatalogue::FindRadioType(text);
    return RadioCatalogue::IsP25Type(type) == RadioCatalogue::IsP25Type(native) ? type : -1;
}

/// Reads memory elements into rows.
class MemoryReader {
public:
    explicit MemoryReader(int page)
        : m_grid(PageGrid[page]), m_parameters(PageParameters[page]),
          m_p25(RadioCatalogue::IsP25Type(m_parameters.Type)),
          m_hasZone(static_cast<size_t>(m_parameters.Rows) + 1) {
        for (size_t i = 0; i < CellTotal; ++i) {
            m_names[i] = CellElements[i].names.name;
            m_formerNames[i] = CellElements[i].names.formerName;
        }
    }

    void ReadRow(const wxXmlNode& memory) {
        wxString text = "0";
        memory.GetAttribute(RowAttribute, &text);
        m_row = ReadNumber(text).value_or(-1);
        if (m_row < 0 || m_row > m_parameters.Rows)
            return;
        const wxXmlNode* child = FirstElement(&memory);
        if (!child)
            return;
        m_kind = Kind::Plain;
        size_t expected = 0;
        for (; child; child = NextElement(child)) {
            const size_t found = Find(child->GetName(), expected);
            if (found == CellTotal || !IsRead(CellElements[found], m_parameters.Type))
                continue;
            expected = found + 1;
            TakeCell(CellElements[found].column, child->GetNodeContent().Left(LongestCellText));
        }
        // Intentional: ZoneTakenFlag is not set, although the row's slot is counted.
        m_grid->SetCellValue(m_row, TFLG, TflgMade);
    }

    /// Locks primaries and shadows by the final text of SHAD, because a file may contain a row twice.
    /// Call after setting the page's editors, which unlocks some of the cells.
    void LockLinkedRows() const {
        if (!m_p25)
            return;
        for (int row = 0; row <= m_parameters.Rows; ++row)
            switch (KindOf(m_grid->GetCellValue(row, SHAD))) {
            case Kind::Primary:
                LockLinkedRow(row, PrimaryRow);
                break;
            case Kind::Shadow:
                LockLinkedRow(row, ShadowRow);
                break;
            case Kind::Plain:
                break;
            }
    }

private:
    enum class Kind { Plain, Primary, Shadow };

    /// Returns the kind of a row by its SHAD text: "P-2", "S-010", or "N".
    static Kind KindOf(const wxString& text) {
        return text.StartsWith("P") ? Kind::Primary : text.StartsWith("S") ? Kind::Shadow : Kind::Plain;
    }

    /// Returns the position of an element's name, CellTotal if unknown. Most elements come in the
    /// expected order.
    size_t Find(const wxString& name, size_t expected) const {
        for (size_t tried = 0; tried < CellTotal; ++tried) {
            const size_t i = (expected + tried) % CellTotal;
            if (name == m_names[i] || name == m_formerNames[i])
                return i;
        }
        return CellTotal;
    }

    void TakeCell(int column, const wxString& text) {
        switch (column) {
        case MFLG:
            if (ReadHex(text) & LinkFlags)
                m_parameters.Flags |= PageHasShadows;
            break;
        case SHAD:
            m_kind = KindOf(text);
            break;
        case SCAN:
            if (m_p25 && m_kind != Kind::Plain) {
                m_grid->SetCellValue(m_row, SCAN, "N");
                return;
            }
            break;
        case ZONE:
            TakeZone(text);
            return;
        default:
            break;
        }
        m_grid->SetCellValue(m_row, column, text);
    }

    void TakeZone(const wxString& text) {
        const auto row = static_cast<size_t>(m_row);
        // A repeated row must still hold only one slot.
        if (m_hasZone[row])
            ReleaseP25ZonePosition(FindZone(m_grid->GetCellValue(m_row, ZONE)));
        m_hasZone[row] = m_row != 0;
        CheckZone(m_grid, m_row, text);
        m_grid->SetCellValue(m_row, TFLG, TflgMade);
    }

    wxGrid* m_grid;
    PageParameterRecord& m_parameters;
    bool m_p25;
    int m_row = 0;
    Kind m_kind = Kind::Plain;
    wxString m_names[CellTotal], m_formerNames[CellTotal];
    std::vector<bool> m_hasZone;
};

} // namespace

int ReadHeader(const wxXmlDocument& document, Target& target, const wxXmlNode*& memories) {
    const wxXmlNode* root = document.GetRoot();
    if (!root)
        return NoRoot;
    if (root->GetName() != RootName)
        return OtherRoot;

    wxString texts[FieldTotal];
    const wxXmlNode* element = FirstElement(root);
    for (int field = 0; field < FieldTotal; ++field) {
        const ElementNames& names = HeaderNames[field];
        if (!element || (element->GetName() != names.name && element->GetName() != names.formerName))
            return NoVersion + field;
        const wxString& text = texts[field] = element->GetNodeContent();
        if (field == FieldType && !text.empty() && RadioCatalogue::FindRadioType(text) < 0)
            return NoType;
        if (field == FieldRadio && RadioCatalogue::FindRadio(text) < 0)
            return NoRadio;
        element = NextElement(element);
    }

    target.radio = RadioCatalogue::FindRadio(texts[FieldRadio]);
    target.band = RadioCatalogue::FindBand(texts[FieldBand]);
    target.bandIndex = RadioCatalogue::FindBandIndex(target.radio, target.band);
    if (target.band < 0 || target.bandIndex < 0)
        return NoBand;
    target.type = TypeOf(texts[FieldType], target.radio, target.band);
    if (target.type < 0)
        return NoType;
    memories = element;
    return ReadDone;
}

int ReadMemories(const wxXmlNode* memories, int page) {
    MemoryReader reader(page);
    int result = ReadDone;
    for (const wxXmlNode* element = memories; element; element = NextElement(element)) {
        const wxString& name = element->GetName();
        if (!name.Contains("Memory") && !name.Contains("MEMORY")) {
            result = OtherElement;
            break;
        }
        reader.ReadRow(*element);
    }
    SetPageEditors(page);
    reader.LockLinkedRows();
    return result;
}

} // namespace ChannelFile
