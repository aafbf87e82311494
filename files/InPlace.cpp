#include "files/InPlace.h"

#include <algorithm>

namespace {

/// One attempt to overwrite, with the data to undo it.
class Overwriting {
public:
    Overwriting(FileBytes& file, std::string_view bytes)
        : m_file(file), m_bytes(bytes), m_size(file.Size()), m_shared(std::min(m_size, bytes.size())) {}

    std::error_code Do() {
        if (const auto error = m_file.Read(m_shared, m_former))
            return error;
        // Append first, so that a full disk is detected before anything is overwritten.
        size_t appended = 0;
        if (const auto error = m_file.Write(m_size, m_bytes.substr(m_shared), appended))
            return error;
        if (const auto error = m_file.Write(0, m_bytes.substr(0, m_shared), m_overwritten))
            return error;
        if (const auto error = m_file.Flush())
            return error;
        // Truncate last; bytes that are cut off can't be restored.
        return m_bytes.size() < m_size ? m_file.Resize(m_bytes.size()) : std::error_code();
    }

    /// Returns false if the former bytes could not be restored.
    bool Undo() {
        size_t restored = 0;
        const auto headError = m_file.Write(0, std::string_view(m_former).substr(0, m_overwritten), restored);
        const auto sizeError = m_bytes.size() > m_size ? m_file.Resize(m_size) : std::error_code();
        return !headError && !sizeError;
    }

private:
    FileBytes& m_file;
    std::string_view m_bytes;
    size_t m_size;
    size_t m_shared; ///< size of the smaller content, in bytes
    std::string m_former;
    size_t m_overwritten = 0;
};

} // namespace

WriteResult OverwriteBytes(FileBytes& file, std::string_view bytes) {
    Overwriting attempt(file, bytes);
    const std::error_code error = attempt.Do();
    return {error, error && !attempt.Undo()};
}
