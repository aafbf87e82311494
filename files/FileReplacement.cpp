#include "files/FileReplacement.h"

#include "files/FilePath.h"

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

/// Returns the reason for the failure of the last system call.
std::error_code LastError() {
    return {errno ? errno : EIO, std::generic_category()};
}

/// Returns the file that a chain of links names, whether it exists or not.
fs::path FollowLinks(fs::path path) {
    std::error_code error;
    for (int links = 0; links < MostLinks && fs::is_symlink(fs::symlink_status(path, error)); ++links)
        path = path.parent_path() / fs::read_symlink(path, error);
    return path;
}

/// Returns why a file must not be replaced; no error if it may be, or does not exist.
std::error_code WhyNotReplaceable(const fs::path& path) {
    std::error_code error;
    const fs::file_status status = fs::status(path, error);
    if (error && status.type() != fs::file_type::not_found)
        return error;
    if (!fs::exists(status))
        return {};
    if (!fs::is_regular_file(status))
        return std::make_error_code(fs::is_directory(status) ? std::errc::is_a_directory
                                                             : std::errc::operation_not_supported);
    return wxFileName::IsFileWritable(NameOf(path)) ? std::error_code() : LastError();
}

/// True for the errors of a folder that forbids creating and removing files. A full disk is not one of them:
/// overwriting would then risk the former file for nothing.
bool IsForbiddenByFolder(const std::error_code& error) {
    return error == std::errc::permission_denied || error == std::errc::operation_not_permitted ||
           error == std::errc::read_only_file_system || error == std::errc::device_or_resource_busy;
}

/// Creates a file that did not exist before, next to path, and returns its path.
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

/// Returns the number of bytes written. A disk that fills up takes the first bytes of a block and reports
/// the error only when asked to take the rest.
size_t WriteAll(wxFile& file, std::string_view bytes) {
    size_t done = 0;
    while (done < bytes.size()) {
        const size_t count = file.Write(bytes.data() + done, bytes.size() - done);
        if (count == 0)
            break;
        done += count;
    }
    return done;
}

/// File on disk.
class DiskBytes : public FileBytes {
public:
    explicit DiskBytes(const fs::path& path) : m_path(path), m_file(NameOf(path), wxFile::read_write) {}

    bool IsOpened() const { return m_file.IsOpened(); }

    size_t Size() const override { return static_cast<size_t>(m_file.Length()); }

    std::error_code Read(size_t count, std::string& bytes) override {
        bytes.resize(count);
        errno = 0;
        const bool good =
            m_file.Seek(0) == 0 && m_file.Read(bytes.data(), count) == static_cast<ssize_t>(count);
        return good ? std::error_code() : LastError();
    }

    std::error_code Write(size_t offset, std::string_view bytes, size_t& done) override {
        errno = 0;
        done =
            m_file.Seek(static_cast<wxFileOffset>(offset)) == wxInvalidOffset ? 0 : WriteAll(m_file, bytes);
        return done == bytes.size() ? std::error_code() : LastError();
    }

    std::error_code Flush() override {
        errno = 0;
        return m_file.Flush() ? std::error_code() : LastError();
    }

    std::error_code Resize(size_t size) override {
        std::error_code error;
        fs::resize_file(m_path, size, error);
        return error;
    }

private:
    fs::path m_path;
    wxFile m_file;
};

WriteResult Overwrite(const fs::path& path, std::string_view bytes) {
    errno = 0;
    DiskBytes file(path);
    return file.IsOpened() ? OverwriteBytes(file, bytes) : WriteResult{LastError()};
}

} // namespace

struct FileReplacement::State {
    fs::path target;
    fs::path fresh; ///< the new file next to it; empty if the target is to be overwritten
    wxFile file;

    /// Writes the fresh file, gives it the target's permissions and moves it to the target's place.
    std::error_code PutInPlace(std::string_view bytes) {
        errno = 0;
        if (WriteAll(file, bytes) < bytes.size() || !file.Flush() || !file.Close())
            return LastError();
        std::error_code error, ignored;
        // Ignore errors: a file system without permissions has none to keep.
        if (fs::exists(target, ignored))
            fs::permissions(fresh, fs::status(target, ignored).permissions(), ignored);
        fs::rename(fresh, target, error);
        return error;
    }

    void DropFresh() {
        file.Close();
        std::error_code ignored;
        if (!fresh.empty())
            fs::remove(fresh, ignored);
        fresh.clear();
    }
};

FileReplacement::FileReplacement() = default;

FileReplacement::~FileReplacement() {
    const wxLogNull quiet;
    if (m_state)
        m_state->DropFresh();
}

std::error_code FileReplacement::Open(const wxString& path) {
    const wxLogNull quiet;
    auto state = std::make_unique<State>();
    state->target = FollowLinks(PathOf(path));
    if (const auto refusal = WhyNotReplaceable(state->target))
        return refusal;
    errno = 0;
    state->fresh = CreateBeside(state->target, state->file);
    if (!state->file.IsOpened()) {
        const std::error_code error = LastError();
        std::error_code ignored;
        if (!IsForbiddenByFolder(error) || !fs::exists(state->target, ignored))
            return error;
        state->fresh.clear();
    }
    m_state = std::move(state);
    return {};
}

WriteResult FileReplacement::Finish(std::string_view bytes) {
    const wxLogNull quiet;
    const std::unique_ptr<State> state = std::move(m_state);
    if (!state->fresh.empty()) {
        const std::error_code error = state->PutInPlace(bytes);
        if (!error)
            return {};
        state->DropFresh();
        std::error_code ignored;
        // A folder may allow new files and still protect those of other users.
        if (!IsForbiddenByFolder(error) || !fs::exists(state->target, ignored))
            return {error};
    }
    return Overwrite(state->target, bytes);
}
