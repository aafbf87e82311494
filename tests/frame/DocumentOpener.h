// What the system opens documents with, in tests.
#pragma once

#include <filesystem>
#include <string>

namespace testbench {

/// Replaces the system's application for PDF files during its lifetime.
class DocumentOpener {
public:
    enum class Kind { Recording, Missing };

    /// `folder` is an empty folder for the application and its record. A missing application opens nothing.
    DocumentOpener(const std::filesystem::path& folder, Kind kind);
    ~DocumentOpener();
    DocumentOpener(const DocumentOpener&) = delete;
    DocumentOpener& operator=(const DocumentOpener&) = delete;

    /// The arguments that the application was started with; empty before that.
    std::string Opened() const;

private:
    std::filesystem::path m_record;
    std::string m_former;
};

/// This program's file.
std::filesystem::path ThisProgram();

} // namespace testbench
