// The three small dialogs that ask for port, radio and band.
#pragma once

#include <wx/arrstr.h>
#include <wx/choice.h>
#include <wx/dialog.h>

class wxActivateEvent;
class wxUpdateUIEvent;

/// Choices of the dialogs. Use them only while the dialog exists: the pointers are not reset when
/// it is destroyed.
extern wxChoice* PortChoice;
extern wxChoice* RadioChoice;
extern wxChoice* BandChoice;

/// The choices of PortDialog while it exists.
extern wxArrayString PortList;
/// The choices of BandDialog while it exists.
extern wxArrayString BandList;

/// A label with a choice, and OK and Cancel under it. OK is enabled only while something is chosen. The
/// choice has the keyboard at first.
class SelectionDialog : public wxDialog {
public:
    /// Chosen text, empty until there is one.
    const wxString& GetValue() const { return m_value; }

protected:
    SelectionDialog(wxWindow* parent, const wxString& title, const wxString& label,
                    const wxArrayString& choices);

    /// Stores the chosen text, if any, as the value. Returns false when nothing is chosen.
    bool TakeChoice();

    wxChoice* m_choice = nullptr;

private:
    void OnActivate(wxActivateEvent& event);
    void OnUpdateOk(wxUpdateUIEvent& event);

    wxString m_value;
    bool m_begun = false;
};

/// Offers the serial ports that can be opened now. Its constructor fills PortList.
class PortDialog : public SelectionDialog {
public:
    PortDialog(wxWindow* parent, const wxString& title);

    /// Selects PortName if it is offered.
    bool TransferDataToWindow() override;
    /// Copies the choice, if there is one, to PortName.
    bool TransferDataFromWindow() override;
};

/// Offers the 18 radios, in the order of their indices.
class RadioDialog : public SelectionDialog {
public:
    /// page (0-based) need not exist yet.
    RadioDialog(wxWindow* parent, const wxString& title, int page);

    /// Selects the page's radio if its label is also its name.
    bool TransferDataToWindow() override;

private:
    int m_page;
};

/// Offers the bands in BandList. The RadioDialog that the user has answered must still exist.
class BandDialog : public SelectionDialog {
public:
    BandDialog(wxWindow* parent, const wxString& title, int page);

    /// Selects the band at the position that the page's former radio has among the radios.
    bool TransferDataToWindow() override;

private:
    int m_page;
};
