// What the tests of the dialogs for radio, band and port share.
#pragma once

#include "frame/SelectionDialogs.h"
#include "tests/support/Keys.h"
#include "tests/support/ZelkWindowTest.h"

#include <wx/button.h>
#include <wx/stattext.h>

#include <string>
#include <vector>

inline constexpr const char* RadioTitle = "<-- Select Target Radio -->";
inline constexpr const char* BandTitle = "<-- Select Frequency Band -->";
inline constexpr const char* PortTitle = "<-- Select Serial Port -->";

using Texts = std::vector<std::string>;

inline Texts ChoicesOf(const wxChoice* choice) {
    Texts texts;
    for (const wxString& text : choice->GetStrings())
        texts.push_back(text.utf8_string());
    return texts;
}

inline bool OkCanBePressed(wxDialog* dialog) {
    return dialog->FindWindow(wxID_OK)->IsEnabled();
}

/// Checks the form that the three dialogs share.
inline void ExpectForm(wxDialog* dialog, const wxString& label, const wxChoice* choice) {
    EXPECT_EQ(dialog->GetParent(), MainFrame);
    EXPECT_TRUE(dialog->HasFlag(wxCAPTION));
    EXPECT_FALSE(dialog->HasFlag(wxCLOSE_BOX));
    EXPECT_FALSE(dialog->HasFlag(wxSYSTEM_MENU));
    EXPECT_FALSE(dialog->HasFlag(wxRESIZE_BORDER));
    EXPECT_EQ(dialog->GetMinSize(), wxSize(190, 110));
    EXPECT_GE(dialog->GetSize().x, 190);
    EXPECT_NEAR(dialog->GetSize().y, 110, 5) << "the window manager's borders count in";
    wxStaticText* text = nullptr;
    for (wxWindow* child : dialog->GetChildren())
        if (auto* found = dynamic_cast<wxStaticText*>(child))
            text = found;
    ASSERT_NE(text, nullptr);
    EXPECT_EQ(text->GetLabel(), label);
    EXPECT_EQ(text->GetSize().x, 50);
    EXPECT_LT(text->GetPosition().x, choice->GetPosition().x);
    wxWindow* ok = dialog->FindWindow(wxID_OK);
    wxWindow* cancel = dialog->FindWindow(wxID_CANCEL);
    ASSERT_NE(ok, nullptr);
    ASSERT_NE(cancel, nullptr);
    EXPECT_GT(ok->GetPosition().y, choice->GetPosition().y);
    // Nothing is clipped.
    const wxSize room = dialog->GetClientSize();
    for (const wxWindow* child : {ok, cancel, static_cast<wxWindow*>(const_cast<wxChoice*>(choice))}) {
        EXPECT_GE(child->GetRect().GetLeft(), 5);
        EXPECT_LE(child->GetRect().GetRight(), room.x - 5);
        EXPECT_LE(child->GetRect().GetBottom(), room.y - 5);
        EXPECT_GE(child->GetSize().x, child->GetBestSize().x);
    }
}

class Selecting : public ZelkWindowTest {
protected:
    void SetUp() override {
        ZelkWindowTest::SetUp();
        testbench::ShowAndFocus(*MainFrame);
    }

    /// The target of the current page as texts.
    static Texts Target() {
        const PageStringRecord& texts = PageStrings[CurrentPage];
        return {texts.RadioName.utf8_string(), texts.BandName.utf8_string(), texts.FileName.utf8_string()};
    }

    /// Makes the page look like one for the radio to the dialogs.
    static void PretendRadio(int radio) {
        SetPageParameters(MainFrame, CurrentPage, radio, 0);
        PageStrings[CurrentPage].FileName = "kept";
    }
};
