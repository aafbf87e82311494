// Modal dialogs in tests: expected ones are answered by script, all others fail the test.
#pragma once

#include <functional>
#include <list>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

#include <wx/defs.h>

#include "robot/OpenDialogs.h"

namespace testbench {

/// What a text must be: exactly this, anything that a regular expression matches in whole, or anything.
class TextRule {
public:
    TextRule(const char* exact) : m_kind(Kind::Exact), m_text(exact) {}
    TextRule(const std::string& exact) : m_kind(Kind::Exact), m_text(exact) {}
    static TextRule Matching(const std::string& expression) { return {Kind::Expression, expression}; }
    static TextRule Any() { return {Kind::Any, {}}; }

    bool Accepts(const std::string& text) const;
    /// For a person.
    std::string Describe() const;

private:
    enum class Kind { Exact, Expression, Any };
    TextRule(Kind kind, const std::string& text) : m_kind(kind), m_text(text) {}

    Kind m_kind;
    std::string m_text;
};

/// The rule that a whole text matches a Perl-like regular expression.
inline TextRule Matching(const std::string& expression) {
    return TextRule::Matching(expression);
}
inline TextRule AnyText() {
    return TextRule::Any();
}

/// One dialog to come and how it is answered; wxID_OK, unseen, if nothing else is told.
class ExpectedDialog {
public:
    ExpectedDialog(DialogKind kind, const TextRule& caption) : m_kind(kind), m_caption(caption) {}

    /// Its message must be this; else any will do.
    ExpectedDialog& Message(const TextRule& message);
    /// The message box must have this style; else any will do. To a style without an icon wxMessageBox
    /// adds wxICON_QUESTION if it has wxYES, else wxICON_INFORMATION; wxMessageDialog adds none.
    ExpectedDialog& Style(long style);
    /// Answers with this id (wxID_OK, wxID_CANCEL, wxID_YES ...) without showing the dialog.
    ExpectedDialog& Answer(int id);
    /// Lets a file dialog choose this file, and answers wxID_OK unless told otherwise.
    ExpectedDialog& Path(const std::string& path);
    /// Works on the dialog, which is not shown, just before it is answered.
    ExpectedDialog& Set(std::function<void(wxDialog*)> work);
    /// Really shows the dialog and then runs the work in its event loop, to act on it and to end it.
    /// A dialog that still stands five seconds later fails the test and is cancelled.
    ExpectedDialog& Do(std::function<void(wxDialog*)> work);

private:
    friend class DialogScript;
    bool Accepts(const DialogFacts& facts) const;
    std::string Describe() const;

    DialogKind m_kind;
    TextRule m_caption;
    TextRule m_message = TextRule::Any();
    std::optional<long> m_style;
    int m_answer = wxID_OK;
    std::optional<std::string> m_path;
    std::function<void(wxDialog*)> m_set, m_do;
};

class DialogDriver;

/// Says what becomes of the dialogs that want to open while it lives; the one made last decides.
class DialogPolicy {
public:
    DialogPolicy();
    virtual ~DialogPolicy();
    DialogPolicy(const DialogPolicy&) = delete;
    DialogPolicy& operator=(const DialogPolicy&) = delete;

    /// The answer, or wxID_NONE to show the dialog.
    virtual int Decide(const DialogFacts& facts) = 0;
    /// Whether the dialog is the one that is expected next.
    virtual bool Awaits(const DialogFacts&) const { return false; }
};

/// The dialogs expected in a test's scope, in their order. A dialog that isn't the next expected one
/// fails the test and is answered with wxID_CANCEL; so does an expected one that hasn't come by the
/// end of the scope. In a test without a script every dialog is unexpected.
class DialogScript : public DialogPolicy {
public:
    DialogScript();
    ~DialogScript() override;

    /// Adds the next dialog. Captions: of a message box or window its title, of a file dialog the
    /// text it was made with.
    ExpectedDialog& Expect(DialogKind kind, const TextRule& caption);
    /// Adds a message box.
    ExpectedDialog& ExpectMessage(const TextRule& caption, const TextRule& message, int answer = wxID_OK);
    /// Adds a file dialog that chooses a file.
    ExpectedDialog& ExpectFile(const TextRule& caption, const std::string& path);

    /// All dialogs that came so far, unexpected ones too. May be asked from any thread; the dialogs
    /// themselves are gone.
    std::vector<DialogFacts> Shown() const;

    /// How many expected dialogs are still to come.
    size_t Missing() const { return m_expected.size(); }

    int Decide(const DialogFacts& facts) override;
    bool Awaits(const DialogFacts& facts) const override;

private:
    std::list<ExpectedDialog> m_expected;
    std::vector<std::unique_ptr<DialogDriver>> m_drivers;
    mutable std::mutex m_mutex;
    std::vector<DialogFacts> m_shown;
};

/// While it lives, dialogs that no DialogScript awaits next are really shown, for somebody else to
/// answer.
class ShowDialogs : public DialogPolicy {
public:
    int Decide(const DialogFacts& facts) override;
};

/// Puts every modal dialog of the program under the policies above; to be called once, by the main
/// program of the tests.
void GuardDialogs();

} // namespace testbench
