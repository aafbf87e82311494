#include "robot/Files.h"
#include "tests/frame/DocumentOpener.h"

#include <windows.h>

#include <iterator>
#include <stdexcept>

namespace fs = std::filesystem;

namespace testbench {

namespace {

constexpr const wchar_t* FileType = L"ZelkTest.Document";

void SetType(const std::wstring& key, const std::wstring& value) {
    const auto bytes = static_cast<DWORD>((value.size() + 1) * sizeof(wchar_t));
    if (RegSetKeyValueW(HKEY_CLASSES_ROOT, key.c_str(), nullptr, REG_SZ, value.c_str(), bytes) != 0)
        throw std::runtime_error("the registry takes no type of files");
}

/// The system's type of such files; empty if there is none.
std::wstring TypeOfPdf() {
    wchar_t text[256] = L"";
    DWORD bytes = sizeof text;
    RegGetValueW(HKEY_CLASSES_ROOT, L".pdf", nullptr, RRF_RT_REG_SZ, nullptr, text, &bytes);
    return text;
}

} // namespace

// Documents are opened by the command of their type. Wine knows only types of all users.
DocumentOpener::DocumentOpener(const fs::path& folder, Kind kind)
    : m_record(folder / "opened"), m_former(fs::path(TypeOfPdf()).string()) {
    const std::wstring command = kind == Kind::Missing
                                     ? L"\"" + (folder / "missing.exe").wstring() + L"\" \"%1\""
                                     : L"cmd.exe /c echo %1>\"" + m_record.wstring() + L".part\"&ren \"" +
                                           m_record.wstring() + L".part\" opened";
    SetType(std::wstring(FileType) + L"\\shell\\open\\command", command);
    SetType(L".pdf", FileType);
}

DocumentOpener::~DocumentOpener() {
    SetType(L".pdf", fs::path(m_former).wstring());
    RegDeleteTreeW(HKEY_CLASSES_ROOT, FileType);
}

std::string DocumentOpener::Opened() const {
    const std::string line = ReadFileIfAny(m_record);
    return line.substr(0, line.find('\r'));
}

fs::path ThisProgram() {
    wchar_t name[MAX_PATH] = L"";
    GetModuleFileNameW(nullptr, name, static_cast<DWORD>(std::size(name)));
    return name;
}

} // namespace testbench
