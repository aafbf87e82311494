// Commands and selection dialogs of the main window, as a user works with them.
#pragma once

#include "tests/support/Modals.h"
#include "tests/support/PageTexts.h"

#include <wx/weakref.h>
#include <wx/window.h>

#include <string>
#include <vector>

class wxChoice;
class wxDialog;
class wxGrid;

namespace testbench {

/// Style of a plain message box: OK and centred, plus the icon that the toolkit adds if none is requested.
constexpr long PlainBox = wxOK | wxCENTRE | wxICON_INFORMATION;

/// Chooses an entry of the main window's menus.
void RunCommand(int id);

/// The key that presses OK in a dialog whose list has the keyboard: its letter, which Windows has none for,
/// or Return, which opens the list on GTK.
extern const char* const KeyOfOk;

/// Whether Return opens a list that has the keyboard; then Escape closes the list and not its dialog.
extern const bool ReturnOpensLists;

/// Chooses the entry at this position and clicks OK once it can be pressed.
void ChooseAndAccept(wxDialog* dialog, wxChoice* choice, int position);

/// Clicks a button of a modal dialog. The dialog handles the click after this returns, since it can end only
/// in its own event loop.
void ClickButton(wxDialog* dialog, int id);

/// Clicks a button that does nothing, and waits until the dialog has handled that.
void ClickDeadButton(wxDialog* dialog, int id);

/// Presses Escape in a modal dialog, which handles it like a click.
void CancelWithKey(wxDialog* dialog);

/// Waits until a window that was closed has been destroyed. Returns false if that doesn't happen.
bool IsGone(const wxWindowRef& window);

/// Expects the radio dialog and chooses the radio with this index.
void ExpectRadio(DialogScript& dialogs, int radio);

/// Expects the band dialog and chooses the band at this position.
void ExpectBand(DialogScript& dialogs, int slot);

/// Adds a page through menu and dialogs. slot is for radios with several bands.
void AddPage(int radio, int slot = -1);

/// Changes the current page's target through menu and dialogs. slot is for radios with several bands.
void ChangeTarget(int radio, int slot = -1);

/// Deletes the current page through menu and question.
void DeletePage();

/// Writes the text into every cell of the row.
void FillRow(wxGrid* grid, int row, const std::string& text);

} // namespace testbench
