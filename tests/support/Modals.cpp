#include "tests/support/Modals.h"

#include "robot/Pattern.h"
#include "robot/Pump.h"

#include <gtest/gtest.h>
#include <wx/filedlg.h>
#include <wx/modalhook.h>
#include <wx/timer.h>

namespace testbench {

namespace {

std::vector<DialogPolicy*>& Policies() {
    static std::vector<DialogPolicy*> policies;
    return policies;
}

int Refuse(const DialogFacts& facts, const std::string& instead) {
    ADD_FAILURE() << "unexpected " << Describe(facts) << "; " << instead;
    return wxID_CANCEL;
}

class Guard : public wxModalDialogHook {
protected:
    int Enter(wxDialog* dialog) override {
        const DialogFacts facts = FactsOf(dialog);
        return Policies().empty() ? Refuse(facts, "none was expected") : Policies().back()->Decide(facts);
    }
};

/// The file chooser reads its folder in the background and returns no path until it is done.
void ChoosePath(wxDialog* dialog, const std::string& path) {
    auto* file = dynamic_cast<wxFileDialog*>(dialog);
    if (file == nullptr) {
        ADD_FAILURE() << "no file dialog to choose " << path << " in";
        return;
    }
    const wxString wanted = wxString::FromUTF8(path);
    file->SetPath(wanted);
    const auto isTaken = [&] { return file->GetPath() == wanted; };
    PumpUntil(isTaken, 3000);
    PumpUntilIdle();
    EXPECT_TRUE(isTaken()) << "the file dialog did not take " << path << " but gives \""
                           << file->GetPath().utf8_string() << "\"";
}

bool IsOpen(const wxDialog* dialog) {
    for (const DialogFacts& facts : OpenDialogs()) {
        if (facts.dialog == dialog) {
            return true;
        }
    }
    return false;
}

} // namespace

/// Waits until a dialog is on the screen, works on it and checks that it ends.
class DialogDriver : public wxTimer {
public:
    DialogDriver(const DialogFacts& facts, std::function<void(wxDialog*)> work)
        : m_facts(facts), m_work(std::move(work)) {
        Start(tickMs);
    }

    void Notify() override {
        if (m_opened && !IsOpen(m_facts.dialog)) {
            Stop();
            return;
        }
        m_opened = m_opened || IsOpen(m_facts.dialog);
        if (m_work && m_opened && m_facts.dialog->IsShownOnScreen()) {
            m_ticks = 0;
            const auto work = std::exchange(m_work, nullptr);
            work(m_facts.dialog);
            return;
        }
        if (++m_ticks == patienceMs / tickMs) {
            Stop();
            ADD_FAILURE() << (m_work ? "never stood on the screen: " : "not ended by the work on it: ")
                          << Describe(m_facts);
            if (m_opened && m_facts.dialog->IsModal()) {
                m_facts.dialog->EndModal(wxID_CANCEL);
            }
        }
    }

private:
    static constexpr int tickMs = 20;
    static constexpr int patienceMs = 5000;
    DialogFacts m_facts;
    std::function<void(wxDialog*)> m_work;
    bool m_opened = false;
    int m_ticks = 0;
};

bool TextRule::Accepts(const std::string& text) const {
    switch (m_kind) {
    case Kind::Exact:
        return text == m_text;
    case Kind::Expression:
        return MatchesWhole(m_text, text);
    case Kind::Any:
        break;
    }
    return true;
}

std::string TextRule::Describe() const {
    switch (m_kind) {
    case Kind::Exact:
        return "\"" + m_text + "\"";
    case Kind::Expression:
        return "/" + m_text + "/";
    case Kind::Any:
        break;
    }
    return "(any)";
}

ExpectedDialog& ExpectedDialog::Message(const TextRule& message) {
    m_message = message;
    return *this;
}

ExpectedDialog& ExpectedDialog::Style(long style) {
    m_style = style;
    return *this;
}

ExpectedDialog& ExpectedDialog::Answer(int id) {
    m_answer = id;
    return *this;
}

ExpectedDialog& ExpectedDialog::Path(const std::string& path) {
    m_path = path;
    return *this;
}

ExpectedDialog& ExpectedDialog::Set(std::function<void(wxDialog*)> work) {
    m_set = std::move(work);
    return *this;
}

ExpectedDialog& ExpectedDialog::Do(std::function<void(wxDialog*)> work) {
    m_do = std::move(work);
    return *this;
}

bool ExpectedDialog::Accepts(const DialogFacts& facts) const {
    return (m_kind == DialogKind::Any || m_kind == facts.kind) && m_caption.Accepts(facts.caption) &&
           m_message.Accepts(facts.message) && (!m_style || *m_style == facts.style);
}

std::string ExpectedDialog::Describe() const {
    DialogFacts facts;
    facts.kind = m_kind;
    std::string text = testbench::Describe(facts);
    text = text.substr(0, text.find('"')) + m_caption.Describe() + " saying " + m_message.Describe();
    return m_style ? text + " in style " + std::to_string(*m_style) : text;
}

DialogPolicy::DialogPolicy() {
    Policies().push_back(this);
}

DialogPolicy::~DialogPolicy() {
    std::erase(Policies(), this);
}

DialogScript::DialogScript() = default;

DialogScript::~DialogScript() {
    for (const ExpectedDialog& expected : m_expected) {
        ADD_FAILURE() << "expected but never came: " << expected.Describe();
    }
}

ExpectedDialog& DialogScript::Expect(DialogKind kind, const TextRule& caption) {
    return m_expected.emplace_back(kind, caption);
}

ExpectedDialog& DialogScript::ExpectMessage(const TextRule& caption, const TextRule& message, int answer) {
    return Expect(DialogKind::Message, caption).Message(message).Answer(answer);
}

ExpectedDialog& DialogScript::ExpectFile(const TextRule& caption, const std::string& path) {
    return Expect(DialogKind::File, caption).Path(path);
}

std::vector<DialogFacts> DialogScript::Shown() const {
    std::lock_guard lock(m_mutex);
    return m_shown;
}

bool DialogScript::Awaits(const DialogFacts& facts) const {
    return !m_expected.empty() && m_expected.front().Accepts(facts);
}

int DialogScript::Decide(const DialogFacts& facts) {
    {
        std::lock_guard lock(m_mutex);
        m_shown.push_back(facts);
        m_shown.back().dialog = nullptr;
    }
    if (!Awaits(facts)) {
        return Refuse(facts, m_expected.empty() ? "no more were expected"
                                                : "next expected: " + m_expected.front().Describe());
    }
    const ExpectedDialog expected = m_expected.front();
    m_expected.pop_front();
    if (expected.m_path) {
        ChoosePath(facts.dialog, *expected.m_path);
    }
    if (expected.m_set) {
        expected.m_set(facts.dialog);
    }
    if (expected.m_do) {
        m_drivers.push_back(std::make_unique<DialogDriver>(facts, expected.m_do));
        return wxID_NONE;
    }
    return expected.m_answer;
}

int ShowDialogs::Decide(const DialogFacts& facts) {
    const std::vector<DialogPolicy*>& policies = Policies();
    for (auto policy = policies.rbegin(); policy != policies.rend(); ++policy) {
        if ((*policy)->Awaits(facts)) {
            return (*policy)->Decide(facts);
        }
    }
    return wxID_NONE;
}

void GuardDialogs() {
    // The oldest hook is called last, so it lists only the dialogs that are really shown.
    WatchDialogs();
    // Never destroyed: the toolkit's own list of hooks may be destroyed before it.
    static Guard* const guard = [] {
        auto* made = new Guard;
        made->Register();
        return made;
    }();
    static_cast<void>(guard);
}

} // namespace testbench
