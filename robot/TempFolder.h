// Temporary folder that is removed with its object.
#pragma once

#include <filesystem>
#include <string>

namespace testbench {

/// A new, empty folder in the system's temporary folder. The destructor removes it with its contents.
class TempFolder {
public:
    /// `name` is the start of the folder's name. Throws std::runtime_error if no folder can be created.
    explicit TempFolder(const std::string& name = "zelk-test");
    ~TempFolder();
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;

    const std::filesystem::path& Path() const { return m_path; }

    /// Full path of an entry of this folder, which need not exist. `entry` is in UTF-8.
    std::filesystem::path operator/(const std::string& entry) const {
        return m_path / std::u8string(entry.begin(), entry.end());
    }

    /// The same as text in UTF-8.
    std::string File(const std::string& entry) const;

    /// Removes the folder now instead of in the destructor.
    void Remove();

private:
    std::filesystem::path m_path;
};

} // namespace testbench
