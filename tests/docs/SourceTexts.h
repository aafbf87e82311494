// The texts in the program's own source, and those among them that are shown to a user.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace docstest {

/// A string literal of the source, with adjacent pieces joined and escapes resolved.
struct SourceText {
    std::string file; ///< name of the source, without folder
    std::string text;
};

/// All string literals of a source text.
std::vector<std::string> LiteralsOf(const std::string& source);

/// The string literals that the source passes to boxes, questions, status texts and the status bar:
/// those within calls of wxMessageBox and similar functions, and those assigned to a status text.
std::vector<std::string> ShownLiteralsOf(const std::string& source);

/// The same for all source files of the program's rooms below the folder.
std::vector<SourceText> LiteralsOfProgram(const std::filesystem::path& folder);
std::vector<SourceText> ShownLiteralsOfProgram(const std::filesystem::path& folder);

} // namespace docstest
