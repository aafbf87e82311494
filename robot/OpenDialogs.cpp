#include "robot/OpenDialogs.h"

#include <wx/filedlg.h>
#include <wx/generic/prntdlgg.h>
#include <wx/modalhook.h>
#include <wx/msgdlg.h>
#include <wx/printdlg.h>

#include <mutex>

namespace testbench {

namespace {

std::mutex openMutex;
std::vector<DialogFacts>& Open() {
    static std::vector<DialogFacts> open;
    return open;
}

/// Records every dialog and answers none. The toolkit calls the oldest hook last, so only dialogs that no
/// other hook has answered arrive here.
class Watcher : public wxModalDialogHook {
protected:
    int Enter(wxDialog* dialog) override {
        const DialogFacts facts = FactsOf(dialog);
        std::lock_guard lock(openMutex);
        Open().push_back(facts);
        return wxID_NONE;
    }

    void Exit(wxDialog* dialog) override {
        std::lock_guard lock(openMutex);
        std::erase_if(Open(), [&](const DialogFacts& facts) { return facts.dialog == dialog; });
    }
};

} // namespace

DialogFacts FactsOf(wxDialog* dialog) {
    DialogFacts facts;
    facts.dialog = dialog;
    if (const auto* message = dynamic_cast<wxMessageDialogBase*>(dialog)) {
        facts.kind = DialogKind::Message;
        facts.caption = message->GetCaption().utf8_string();
        facts.message = message->GetMessage().utf8_string();
        facts.style = message->GetMessageDialogStyle();
        return facts;
    }
    facts.style = dialog->GetWindowStyle();
    if (const auto* file = dynamic_cast<wxFileDialogBase*>(dialog)) {
        facts.kind = DialogKind::File;
        facts.caption = file->GetMessage().utf8_string();
        return facts;
    }
    if (dynamic_cast<wxPrintDialogBase*>(dialog) != nullptr) {
        facts.kind = DialogKind::Print;
    } else if (dynamic_cast<wxPageSetupDialogBase*>(dialog) != nullptr ||
               dynamic_cast<wxGenericPageSetupDialog*>(dialog) != nullptr) {
        facts.kind = DialogKind::PageSetup;
    }
    facts.caption = dialog->GetTitle().utf8_string();
    return facts;
}

std::string Describe(const DialogFacts& facts) {
    static constexpr const char* names[] = {"dialog",       "message box",        "file dialog",
                                            "print dialog", "page set-up dialog", "dialog"};
    std::string text = std::string(names[static_cast<int>(facts.kind)]) + " \"" + facts.caption + "\"";
    if (!facts.message.empty()) {
        text += " saying \"" + facts.message + "\"";
    }
    return text;
}

void WatchDialogs() {
    // Never destroyed: the toolkit may destroy its list of hooks first.
    static Watcher* const watcher = [] {
        auto* made = new Watcher;
        made->Register();
        return made;
    }();
    static_cast<void>(watcher);
}

std::vector<DialogFacts> OpenDialogs() {
    std::lock_guard lock(openMutex);
    return Open();
}

} // namespace testbench
