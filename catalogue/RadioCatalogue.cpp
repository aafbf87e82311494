#include "catalogue/RadioCatalogue.h"

#include "catalogue/AsciiText.h"

#include <string>
#include <unordered_map>

namespace RadioCatalogue {

wxArrayString ToneList;
wxArrayString CtcssList;
wxArrayString CodeList;
wxArrayString ZoneList;

namespace {

template <size_t count>
int FindText(const char* const (&texts)[count], const wxString& text) {
    for (size_t i = 0; i < count; ++i)
        if (IsText(text, texts[i]))
            return static_cast<int>(i);
    return -1;
}

wxString EntryOf(const wxArrayString& list, int i) {
    if (i < 0 || i >= static_cast<int>(list.size()))
        return {};
    return list[static_cast<size_t>(i)];
}

/// Positions of the texts of a choice list. The check of a page looks up four texts per row in lists of up to
/// 84; searching the lists would take most of its time.
class ListIndex {
public:
    void Fill(const wxArrayString& list) {
        m_positions.clear();
        // Of equal texts the first one stays.
        for (size_t i = 0; i < list.size(); ++i)
            m_positions.emplace(list[i].ToStdWstring(), static_cast<int>(i));
    }

    /// -1 when the list lacks the text.
    int Find(const wxString& text) const {
        const auto found = m_positions.find(text.ToStdWstring());
        return found == m_positions.end() ? -1 : found->second;
    }

private:
    std::unordered_map<std::wstring, int> m_positions;
};

ListIndex tonePositions, ctcssPositions, codePositions;

/// Choice texts of BandDialog by band id, empty for bands that no radio offers as a choice.
constexpr const char* BandChoiceText[BandTotal] = {
    "FM: 30-50 MHz",   "FM: 66-88 MHz",   "",           "AM: 118-138 MHz", "", "FM: 138-174 MHz",
    "AM: 225-400 MHz", "FM: 403-512 MHz", "K6: 3-BAND",
};

} // namespace

void FillChoiceLists() {
    ZoneList = ListOf(ZoneNames32);
    ToneList = ListOf(ToneTexts);
    CtcssList = ListOf(CtcssTexts);
    CodeList = ListOf(CodeTexts);
    tonePositions.Fill(ToneList);
    ctcssPositions.Fill(CtcssList);
    codePositions.Fill(CodeList);
}

int GetRadioType(int radio, int band) {
    int type = ANFM;
    switch (radio) {
    case Orv12:
        type = O12;
        break;
    case Kdrv716:
        type = RP25;
        break;
    case Kdrv716B:
        type = NP25;
        break;
    case Kdar2000:
        type = KDAR;
        break;
    case Kdrv4xxx:
        if (band == K6Module || band == K7Module)
            type = MDLX;
        break;
    default:
        break;
    }
    const bool amBand = band == Am108To138 || band == Am118To138 || band == Am225To400;
    return amBand && type == ANFM ? ANAM : type;
}

int GetChannelStep(int radio, int band) {
    switch (radio) {
    case Orv12:
    case Kdar2000:
        return 8333;
    case Kdrv716B:
        return 1250;
    case Kdrv8400:
    case Kdrv4xxx:
        return band == Am108To138 || band == Am118To138 ? 8333 : 2500;
    default:
        return 2500;
    }
}

const wxArrayString& ZoneNames(int type) {
    static const wxArrayString first = ListOf(ZoneNames16), second = ListOf(ZoneNames32);
    return type == RP25 ? first : second;
}

int FindRadio(const wxString& name) {
    return FindText(RadioName, name);
}

int FindRadioType(const wxString& tag) {
    return FindText(RadioTypeName, tag);
}

int FindBand(const wxString& name) {
    return FindText(BandName, name);
}

int FindBandIndex(int radio, int band) {
    if (radio < 0 || radio >= RadioTotal)
        return -1;
    for (int slot = 0; slot < BandSlotTotal && RadioBands[radio][slot] != NoBand; ++slot)
        if (RadioBands[radio][slot] == band)
            return slot;
    return -1;
}

void MakeBandList(int radio, wxArrayString& list) {
    if (!HasBandChoice(radio)) {
        list.push_back("Error Bad Band Config");
        return;
    }
    // The position chosen in the list is used as the band slot.
    for (int band : RadioBands[radio])
        if (band != NoBand)
            list.push_back(BandChoiceText[band]);
}

int GetToneIndex(const wxString& text) {
    return tonePositions.Find(text);
}

int GetCtcssIndex(const wxString& text) {
    return ctcssPositions.Find(text);
}

wxString GetToneText(int i) {
    return EntryOf(ToneList, i);
}

wxString GetCtcssText(int i) {
    return EntryOf(CtcssList, i);
}

int CodeIndexForType(const wxString& text, int type) {
    const int i = codePositions.Find(text);
    if (i < 0)
        return -1;
    return IsP25Type(type) ? i - 1 : i;
}

wxString GetCodeText(int i, int type) {
    if (i < 0 || i >= static_cast<int>(CodeList.size()))
        return {};
    return EntryOf(CodeList, IsP25Type(type) ? i + 1 : i);
}

int GetModeIndex(const wxString& text) {
    if (IsText(text, "w") || IsText(text, "W"))
        return 0;
    if (IsText(text, "n") || IsText(text, "N"))
        return 1;
    return IsText(text, "D") ? 2 : -1;
}

bool IsAnalogSquelch(const wxString& text, int column) {
    return column == RSQL ? FindText(RxAnalogSquelch, text) >= 0 : FindText(TxAnalogSquelch, text) >= 0;
}

bool IsDigitalSquelch(const wxString& text, int column) {
    return column == RSQL ? FindText(RxDigitalSquelch, text) >= 0 : FindText(TxDigitalSquelch, text) >= 0;
}

} // namespace RadioCatalogue
