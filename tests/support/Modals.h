// Modal dialogs in tests: a script answers expected ones, all others fail the test.
#pragma once

#include "robot/OpenDialogs.h"

#include <wx/defs.h>

#include <functional>
#include <list>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

namespace testbench {

/// A condition on a text: exactly this one, a full match of a regular expression, or any text.
class TextRule {
public:
    TextRule(const char* exact) : m_kind(Kind::Exact), m_text(exact) {}
    TextRule(const std::string& exact) : m_kind(Kind::Exact), m_text(exact) {}
    static TextRule Matching(const std::string& expression) { return {Kind::Expression, expression}; }
    static TextRule Any() { return {Kind::Any, {}}; }

    bool Accepts(const std::string& text) const;
    /// A readable description.
    std::string Describe() const;

private:
    enum class Kind { Exact, Expression, Any };
    TextRule(Kind kind, const std::string& text) : m_kind(kind), m_text(text) {}

    Kind m_kind;
    std::string m_text;
};

/// The rule that the complete text matches a Perl-like regular expression.
inline TextRule Matching(const std::string& expression) {
    return TextRule::Matching(expression);
}
inline TextRule AnyText() {
    return TextRule::Any();
}

/// An expected dialog and its answer. By default it is answered with wxID_OK and not shown.
class ExpectedDialog {
public:
    ExpectedDialog(DialogKind kind, const TextRule& caption) : m_kind(kind), m_caption(caption) {}

    /// Requires this message; without it, any is accepted.
    ExpectedDialog& Message(const TextRule& message);
    /// Requires this style of the message box; without it, any is accepted. To a style without an icon
    /// wxMessageBox adds wxICON_QUESTION if it has wxYES, else wxICON_INFORMATION; wxMessageDialog
    /// adds none.
    ExpectedDialog& Style(long style);
    /// Answers with this id (wxID_OK, wxID_CANCEL, wxID_YES ...) without showing the dialog.
    ExpectedDialog& Answer(int id);
    /// Makes a file dialog choose this file. The answer is wxID_OK unless set otherwise.
    ExpectedDialog& Path(const std::string& path);
    /// Runs the work on the dialog, which is not shown, just before it is answered.
    ExpectedDialog& Set(std::function<void(wxDialog*)> work);
    /// Really shows the dialog and then runs the work in its event loop, to act on it and to end it.
    /// A dialog that is still open five seconds later fails the test and is cancelled.
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

/// Decides about the dialogs that are about to open during its lifetime; the newest policy decides.
class DialogPolicy {
public:
    DialogPolicy();
    virtual ~DialogPolicy();
    DialogPolicy(const DialogPolicy&) = delete;
    DialogPolicy& operator=(const DialogPolicy&) = delete;

    /// The answer, or wxID_NONE to show the dialog.
    virtual int Decide(const DialogFacts& facts) = 0;
    /// Whether the dialog is the next expected one.
    virtual bool Awaits(const DialogFacts&) const { return false; }
};

/// The dialogs expected in a test's scope, in order. A dialog that isn't the next expected one fails
/// the test and is answered with wxID_CANCEL. An expected one that hasn't come by the end of the
/// scope also fails the test. In a test without a script every dialog is unexpected.
class DialogScript : public DialogPolicy {
public:
    DialogScript();
    ~DialogScript() override;

    /// Adds the next dialog. The caption is the title of a message box or window, or the text with
    /// which a file dialog was created.
    ExpectedDialog& Expect(DialogKind kind, const TextRule& caption);
    /// Adds a message box.
    ExpectedDialog& ExpectMessage(const TextRule& caption, const TextRule& message, int answer = wxID_OK);
    /// Adds a file dialog that chooses a file.
    ExpectedDialog& ExpectFile(const TextRule& caption, const std::string& path);

    /// All dialogs so far, including unexpected ones. Callable from any thread; the dialogs
    /// themselves no longer exist.
    std::vector<DialogFacts> Shown() const;

    /// Number of expected dialogs that haven't come yet.
    size_t Missing() const { return m_expected.size(); }

    int Decide(const DialogFacts& facts) override;
    bool Awaits(const DialogFacts& facts) const override;

private:
    std::list<ExpectedDialog> m_expected;
    std::vector<std::unique_ptr<DialogDriver>> m_drivers;
    mutable std::mutex m_mutex;
    std::vector<DialogFacts> m_shown;
};

/// During its lifetime, really shows the dialogs that no DialogScript expects next, so that
/// something else can answer them.
class ShowDialogs : public DialogPolicy {
public:
    int Decide(const DialogFacts& facts) override;
};

/// Applies the policies above to every modal dialog of the program. Call it once, in the main
/// program of the tests.
void GuardDialogs();

} // namespace testbench
