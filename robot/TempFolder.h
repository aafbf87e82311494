// A folder of its own that goes away with the object.
#pragma once

#include <filesystem>
#include <string>

namespace testbench {

/// A fresh, empty folder below the system's temporary folder, removed with all it holds at the end.
class TempFolder {
public:
    /// Throws std::runtime_error if no folder can be made. `name` is the start of the folder's name.
    explicit TempFolder(const std::string& name = "zelk-test");
    ~TempFolder();
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;

    const std::filesystem::path& Path() const { return m_path; }

    /// The full path of an entry of this folder, whether it exists or not.
    std::filesystem::path operator/(const std::string& entry) const { return m_path / entry; }

    /// Removes the folder now; the destructor then has nothing left to do.
    void Remove();

private:
    std::filesystem::path m_path;
};

} // namespace testbench
