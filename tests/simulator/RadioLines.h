// Lines of a dialogue with an analog radio.
#pragma once

#include <string>
#include <string_view>

/// A good memory line of the band FM 138-174, without its end.
std::string VhfLine(const std::string& number, const std::string& description = "TOWER1   ");
/// The end line with its carriage return, as a program sends it.
std::string EndLine(const std::string& word);
/// Number of occurrences of `part` in `text`.
int CountOf(std::string_view text, std::string_view part);
