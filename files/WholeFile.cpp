#include "files/WholeFile.h"

#include <wx/file.h>
#include <wx/filename.h>
#include <wx/log.h>

#include <cerrno>
#include <filesystem>
#include <system_error>

namespace fs = std::filesystem;

namespace {

constexpr int MostLinks = 40;
constexpr int MostNames = 100;

wxString TextOf(const std::error_code& error) {
    return wxString::FromUTF8(error.message());
}

wxString LastProblem() {
    return TextOf({errno, std::generic_category()});
}

/// A path as the toolkit takes it, whatever the locale.
wxString NameOf(const fs::path& path) {
    return {path.c_str(), *wxConvFileName};
}

/// The file that a chain of links names, whether it exists or not.
fs::path FollowLinks(fs::path path) {
    std::error_code error;
    for (int links = 0; links < MostLinks && fs::is_symlink(fs::symlink_status(path, error)); ++links)
        path = path.parent_path() / fs::read_symlink(path, error);
    return path;
}

/// Why a file must not be replaced; empty when it may, or doesn't exist.
wxString WhyNotReplaceable(const fs::path& path) {
    std::error_code error;
    const fs::file_status status = fs::status(path, error);
    if (error && status.type() != fs::file_type::not_found)
        return TextOf(error);
    if (!fs::exists(status))
        return {};
    if (!fs::is_regular_file(status))
        return TextOf(std::make_error_code(fs::is_directory(status) ? std::errc::is_a_directory
                                                                    : std::errc::operation_not_supported));
    if (!wxFileName::IsFileWritable(NameOf(path)))
        return LastProblem();
    return {};
}

/// A file that did not exist, beside path.
fs::path CreateBeside(const fs::path& path, wxFile& file) {
    fs::path name;
    for (int n = 0; n < MostNames; ++n) {
        name = path;
        name += ".new" + std::to_string(n);
        if (file.Create(NameOf(name), false) || errno != EEXIST)
            break;
    }
    return name;
}

/// A disk that gets full takes the first bytes of a block and says so only when asked to take the rest.
bool WriteAll(wxFile& file, std::string_view bytes) {
    while (!bytes.empty()) {
        const size_t count = file.Write(bytes.data(), bytes.size());
        if (count == 0)
            return false;
        bytes.remove_prefix(count);
    }
    return true;
}

} // namespace

struct FileReplacement::State {
    fs::path target, fresh;
    wxFile file;
};

FileReplacement::FileReplacement() = default;

FileReplacement::~FileReplacement() {
    if (!m_state)
        return;
    const wxLogNull quiet;
    m_state->file.Close();
    std::error_code ignored;
    fs::remove(m_state->fresh, ignored);
}

wxString FileReplacement::Open(const wxString& path) {
    const wxLogNull quiet;
    auto state = std::make_unique<State>();
    state->target = FollowLinks(fs::path(path.fn_str().data()));
    const wxString refusal = WhyNotReplaceable(state->target);
    if (!refusal.empty())
        return refusal;
    state->fresh = CreateBeside(state->target, state->file);
    if (!state->file.IsOpened())
        return LastProblem();
    m_state = std::move(state);
    return {};
}

wxString FileReplacement::Finish(std::string_view bytes) {
    const wxLogNull quiet;
    const std::unique_ptr<State> state = std::move(m_state);
    wxFile& file = state->file;
    std::error_code error;
    if (!(WriteAll(file, bytes) && file.Flush() && file.Close()))
        error.assign(errno ? errno : EIO, std::generic_category());
    else {
        std::error_code ignored;
        // A file system without permissions has none to keep.
        if (fs::exists(state->target, ignored))
            fs::permissions(state->fresh, fs::status(state->target, ignored).permissions(), ignored);
        fs::rename(state->fresh, state->target, error);
    }
    if (!error)
        return {};
    file.Close();
    std::error_code ignored;
    fs::remove(state->fresh, ignored);
    return TextOf(error);
}

wxString WriteWholeFile(const wxString& path, std::string_view bytes) {
    FileReplacement file;
    const wxString problem = file.Open(path);
    return problem.empty() ? file.Finish(bytes) : problem;
}
