// The texts in the program's own source, and those among them that a user gets to see.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace docstest {

/// A string literal of the source, pieces that stand side by side joined, escapes resolved.
struct SourceText {
    std::string file; ///< of the source, without folder
    std::string text;
};

/// All string literals of a source text.
std::vector<std::string> LiteralsOf(const std::string& source);

/// The string literals that the source hands to boxes, questions, status texts and the status bar: those
/// within the calls of wxMessageBox and its like, and those that become a status text.
std::vector<std::string> ShownLiteralsOf(const std::string& source);

/// Both for all source files of the program's rooms below the folder.
std::vector<SourceText> LiteralsOfProgram(const std::filesystem::path& folder);
std::vector<SourceText> ShownLiteralsOfProgram(const std::filesystem::path& folder);

} // namespace docstest
