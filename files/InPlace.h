// Giving a file other bytes where it stands, for want of a better place.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <system_error>

/// An open file as OverwriteBytes needs it. Each operation answers why it failed.
class FileBytes {
public:
    virtual ~FileBytes() = default;

    /// Bytes of the file when it was opened.
    virtual size_t Size() const = 0;
    /// Reads the first count bytes.
    virtual std::error_code Read(size_t count, std::string& bytes) = 0;
    /// Writes bytes from offset on. done becomes how many were written, also on failure.
    virtual std::error_code Write(size_t offset, std::string_view bytes, size_t& done) = 0;
    /// Hands what was written to the device.
    virtual std::error_code Flush() = 0;
    virtual std::error_code Resize(size_t size) = 0;
};

struct OverwriteResult {
    std::error_code error; ///< of the step that failed; none when the file holds the new bytes
    bool damaged = false;  ///< after an error: the former bytes could not be put back
};

/// Makes bytes the content of the file. A failure is undone: what has been overwritten by then is put back.
OverwriteResult OverwriteBytes(FileBytes& file, std::string_view bytes);
