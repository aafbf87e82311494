// Overwrites a file in place, when it can't be replaced by a new one.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <system_error>

/// Open file as OverwriteBytes needs it. Each operation returns the reason for its failure, or no error.
class FileBytes {
public:
    virtual ~FileBytes() = default;

    /// Size of the file in bytes when it was opened.
    virtual size_t Size() const = 0;
    /// Reads the first count bytes.
    [[nodiscard]] virtual std::error_code Read(size_t count, std::string& bytes) = 0;
    /// Writes bytes from offset on. Sets done to the number of bytes written, also on failure.
    [[nodiscard]] virtual std::error_code Write(size_t offset, std::string_view bytes, size_t& done) = 0;
    /// Flushes what was written to the device.
    [[nodiscard]] virtual std::error_code Flush() = 0;
    [[nodiscard]] virtual std::error_code Resize(size_t size) = 0;
};

/// Outcome of writing a file.
struct [[nodiscard]] WriteResult {
    std::error_code error; ///< of the failed step; none if the file holds the new bytes
    bool damaged = false;  ///< after an error: the former bytes could not be restored
};

/// Replaces the content of the file with bytes. Undoes a failure by restoring the bytes overwritten so far.
WriteResult OverwriteBytes(FileBytes& file, std::string_view bytes);
