// Catalogue of radios: their bands, rows and types, and the values that cells may hold.
#pragma once

#include "catalogue/ChoiceLists.h"
#include "catalogue/ColumnTables.h"
#include "catalogue/CsvTables.h"
#include "catalogue/MemoryRow.h"
#include "catalogue/RadioTables.h"

#include <wx/arrstr.h>
#include <wx/string.h>

namespace RadioCatalogue {

/// The lists of ChoiceLists.h as string arrays, filled when the window is built.
extern wxArrayString ToneList;
extern wxArrayString CtcssList;
extern wxArrayString CodeList;

/// Zone choices of the P25 page that was set up last; the only list that changes. Not a source for the zones
/// of a given page: use ZoneNames.
extern wxArrayString ZoneList;

/// Fills ToneList, CtcssList and CodeList, and ZoneList with ZoneNames32.
void FillChoiceLists();

/// A constant list as a string array.
template <size_t count>
wxArrayString ListOf(const char* const (&texts)[count]) {
    wxArrayString list;
    list.reserve(count);
    for (const char* text : texts)
        list.push_back(text);
    return list;
}

/// Radio type (0 to 7) of a radio index and a band id, K7Module included.
int GetRadioType(int radio, int band);

/// Tuning step in Hz of a radio index and a band id.
int GetChannelStep(int radio, int band);

/// True for the two P25 radio types.
constexpr bool IsP25Type(int type) {
    return type == RP25 || type == NP25;
}

/// Zone names of pages of a radio type, by their position (0-based) in records and zone counters: ZoneNames16
/// for RP25, ZoneNames32 for any other type.
const wxArrayString& ZoneNames(int type);

/// Position of the exact text in RadioName, or -1.
int FindRadio(const wxString& name);

/// Position of the exact tag in RadioTypeName, or -1.
int FindRadioType(const wxString& tag);

/// Band id of the exact text in BandName, or -1.
int FindBand(const wxString& name);

/// Band slot (0 to 5) of the radio that holds the band id, or -1. Also -1 for a radio index outside the
/// table.
int FindBandIndex(int radio, int band);

/// Appends the choice texts of the radio's bands to list. A radio without a choice
/// (HasBandChoice) appends "Error Bad Band Config".
void MakeBandList(int radio, wxArrayString& list);

/// Position of the text in ToneList, -1 when absent. The first match wins: "OFF" is 0.
int GetToneIndex(const wxString& text);

/// Position of the text in CtcssList, -1 when absent.
int GetCtcssIndex(const wxString& text);

/// Entry i of ToneList; empty past its ends.
wxString GetToneText(int i);

/// Entry i of CtcssList; empty past its ends.
wxString GetCtcssText(int i);

/// Position of the text in CodeList, one less on a P25 page (type 1 or 2), where "023" is 0
/// and "OFF" -1; -1 when absent.
int CodeIndexForType(const wxString& text, int type);

/// Inverse of CodeIndexForType; empty past the ends.
wxString GetCodeText(int i, int type);

/// 0 for "w" and "W", 1 for "n" and "N", 2 for "D", otherwise -1.
int GetModeIndex(const wxString& text);

/// True when text is an analog squelch letter of the column: a receive letter for RSQL, a transmit letter for
/// any other column.
bool IsAnalogSquelch(const wxString& text, int column);

/// True when text is a digital squelch letter of the column: a receive letter for RSQL, a transmit letter for
/// any other column.
bool IsDigitalSquelch(const wxString& text, int column);

} // namespace RadioCatalogue
