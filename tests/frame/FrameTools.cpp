#include "tests/frame/FrameTools.h"

#include "commands/CommandIds.h"
#include "frame/SelectionDialogs.h"
#include "frame/ZelkMain.h"
#include "robot/Hands.h"
#include "tests/support/Keys.h"

#include <gtest/gtest.h>
#include <wx/app.h>
#include <wx/button.h>
#include <wx/grid.h>
#include <wx/menu.h>

namespace testbench {

bool IsGone(const wxWindowRef& window) {
    return PumpUntil([&window] {
        wxTheApp->ProcessIdle();
        return !window;
    });
}

void RunCommand(int id) {
    wxMenu* menu = nullptr;
    ASSERT_NE(MainFrame->m_menuBar->FindItem(id, &menu), nullptr) << "no menu entry " << id;
    menu->SendEvent(id);
    PumpUntilIdle();
}

namespace {

Hands& Person() {
    static Hands hands(1);
    return hands;
}

} // namespace

namespace {

/// A click is lost on a dialog that isn't shown yet, or on a button that isn't ready yet.
void AwaitDialog(const wxDialog* dialog) {
    EXPECT_TRUE(PumpUntil([dialog] { return Person().FocusedTitle() == dialog->GetTitle().utf8_string(); }));
    PumpFor(30);
}

} // namespace

void ClickButton(wxDialog* dialog, int id) {
    wxWindow* button = dialog->FindWindow(id);
    ASSERT_NE(button, nullptr) << "no button " << id;
    AwaitDialog(dialog);
    Person().Click(MiddleOf(*button));
}

void ClickDeadButton(wxDialog* dialog, int id) {
    wxWindow* button = dialog->FindWindow(id);
    ASSERT_NE(button, nullptr) << "no button " << id;
    AwaitDialog(dialog);
    ClickAt(MiddleOf(*button));
}

void CancelWithKey(wxDialog* dialog) {
    EXPECT_TRUE(PumpUntil([dialog] { return Person().FocusedTitle() == dialog->GetTitle().utf8_string(); }));
    Person().Press("Escape");
}

void ChooseAndAccept(wxDialog* dialog, wxChoice* choice, int position) {
    choice->SetSelection(position);
    wxWindow* ok = dialog->FindWindow(wxID_OK);
    EXPECT_TRUE(PumpUntil([ok] { return ok->IsEnabled(); })) << "OK can't be pressed";
    ClickButton(dialog, wxID_OK);
}

void ExpectRadio(DialogScript& dialogs, int radio) {
    dialogs.Expect(DialogKind::Other, "<-- Select Target Radio -->").Do([radio](wxDialog* dialog) {
        ChooseAndAccept(dialog, RadioChoice, radio);
    });
}

void ExpectBand(DialogScript& dialogs, int slot) {
    dialogs.Expect(DialogKind::Other, "<-- Select Frequency Band -->").Do([slot](wxDialog* dialog) {
        ChooseAndAccept(dialog, BandChoice, slot);
    });
}

namespace {

void ExpectTarget(DialogScript& dialogs, int radio, int slot) {
    ExpectRadio(dialogs, radio);
    if (slot >= 0)
        ExpectBand(dialogs, slot);
}

} // namespace

void AddPage(int radio, int slot) {
    DialogScript dialogs;
    ExpectTarget(dialogs, radio, slot);
    RunCommand(IdPageAdd);
}

void ChangeTarget(int radio, int slot) {
    DialogScript dialogs;
    dialogs.ExpectMessage("Change Target?",
                          "If there is data on this page,\nthis may result in invalid configuration!");
    ExpectTarget(dialogs, radio, slot);
    RunCommand(IdSetTarget);
}

void DeletePage() {
    DialogScript dialogs;
    dialogs.ExpectMessage("Delete Page?", "This will delete ALL data on this page! Continue?");
    RunCommand(IdPageDelete);
}

void FillRow(wxGrid* grid, int row, const std::string& text) {
    for (int col = 0; col < ColumnTotal; ++col)
        grid->SetCellValue(row, col, text);
}

} // namespace testbench
