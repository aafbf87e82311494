#include "tests/frame/ToolkitLabels.h"

#include <wx/dialog.h>
#include <wx/stattext.h>

namespace testbench {

namespace {

void CollectLabels(const wxWindow& window, std::vector<std::string>& texts) {
    if (!window.IsShown())
        return;
    if (const auto* label = dynamic_cast<const wxStaticText*>(&window))
        texts.push_back(label->GetLabelText().utf8_string());
    for (const wxWindow* child : window.GetChildren())
        CollectLabels(*child, texts);
}

} // namespace

// The toolkit has an About box of its own there.
std::vector<std::string> AboutBoxLabels() {
    std::vector<std::string> texts;
    for (const wxWindow* window : wxTopLevelWindows)
        if (dynamic_cast<const wxDialog*>(window))
            CollectLabels(*window, texts);
    return texts;
}

std::vector<std::string> NameLabels(const std::string& name, const std::string& version) {
    return {name + " " + version};
}

} // namespace testbench
