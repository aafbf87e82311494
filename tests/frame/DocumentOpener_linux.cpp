#include "robot/Files.h"
#include "tests/frame/DocumentOpener.h"

#include <cstdlib>

namespace fs = std::filesystem;

namespace testbench {

// Documents are opened by a command of the desktop, which is looked for in PATH.
DocumentOpener::DocumentOpener(const fs::path& folder, Kind kind)
    : m_record(folder / "opened"), m_former(std::getenv("PATH")) {
    if (kind == Kind::Missing) {
        setenv("PATH", folder.c_str(), 1);
        return;
    }
    const fs::path opener = folder / "xdg-open";
    WriteFile(opener, "#!/bin/sh\nprintf '%s' \"$*\" >'" + m_record.string() + ".part'\nmv '" +
                          m_record.string() + ".part' '" + m_record.string() + "'\n");
    fs::permissions(opener, fs::perms::owner_all);
    setenv("PATH", (folder.string() + ":" + m_former).c_str(), 1);
}

DocumentOpener::~DocumentOpener() {
    setenv("PATH", m_former.c_str(), 1);
}

std::string DocumentOpener::Opened() const {
    return ReadFileIfAny(m_record);
}

fs::path ThisProgram() {
    return fs::read_symlink("/proc/self/exe");
}

} // namespace testbench
