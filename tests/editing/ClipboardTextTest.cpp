// Text of the clipboard, split into cells and joined.
#include "editing/ClipboardText.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using Lines = std::vector<std::vector<std::string>>;

Lines Split(const std::string& text) {
    Lines lines;
    for (const std::vector<wxString>& row : SplitClipboardText(wxString::FromUTF8(text))) {
        lines.emplace_back();
        for (const wxString& cell : row)
            lines.back().push_back(cell.utf8_string());
    }
    return lines;
}

} // namespace

TEST(ClipboardText, IsSplitAtTabsAndLineEnds) {
    const struct {
        const char* name;
        const char* text;
        Lines cells;
    } cases[] = {
        {"nothing", "", {}},
        {"one cell", "151.1375", {{"151.1375"}}},
        {"one cell with its line end", "151.1375\n", {{"151.1375"}}},
        {"an empty cell", "\n", {{""}}},
        {"line feeds", "a\tb\nc\td\n", {{"a", "b"}, {"c", "d"}}},
        {"carriage returns and line feeds", "a\tb\r\nc\td\r\n", {{"a", "b"}, {"c", "d"}}},
        {"carriage returns", "a\rb\r", {{"a"}, {"b"}}},
        {"no last line end", "a\r\nb", {{"a"}, {"b"}}},
        {"an empty line between", "a\n\nb\n", {{"a"}, {""}, {"b"}}},
        {"empty cells at both ends", "\ta\t\n", {{"", "a", ""}}},
        {"lines of different lengths", "a\nb\tc\td\n", {{"a"}, {"b", "c", "d"}}},
        {"blanks", " a \t b\n", {{" a ", " b"}}},
        {"other languages", "Fähre\t☒☐☐☐☐\n", {{"Fähre", "☒☐☐☐☐"}}},
    };
    for (const auto& c : cases)
        EXPECT_EQ(Split(c.text), c.cells) << c.name;
}

TEST(ClipboardText, InQuotesIsOneCell) {
    const struct {
        const char* name;
        const char* text;
        Lines cells;
    } cases[] = {
        {"a tab", "\"a\tb\"\tc\n", {{"a\tb", "c"}}},
        {"a line end", "\"a\nb\"\tc\nd\n", {{"a\nb", "c"}, {"d"}}},
        {"doubled quotes", "\"say \"\"mayday\"\"\tnow\"\n", {{"say \"mayday\"\tnow"}}},
        {"the last cell", "a\t\"b\nc\"", {{"a", "b\nc"}}},
        {"nothing", "\"\"\ta\n", {{"", "a"}}},
        {"a quote within a cell", "5\" mast\tb\n", {{"5\" mast", "b"}}},
        {"a quote that is not closed", "\"a\tb\n", {{"\"a", "b"}}},
        {"text behind the closing quote", "\"a\" b\tc\n", {{"\"a\" b", "c"}}},
    };
    for (const auto& c : cases)
        EXPECT_EQ(Split(c.text), c.cells) << c.name;
}

TEST(ClipboardText, JoinedComesBackWhenItIsSplit) {
    const ClipboardRows rows = {
        {"a", "", "b\tc"}, {"\"quoted\"", "5\" mast", "two\nlines"}, {"", "", ""}, {" ", "\r", "\"\""}};
    for (const char* lineEnd : {"\n", "\r\n"})
        EXPECT_EQ(SplitClipboardText(JoinClipboardText(rows, lineEnd)), rows);
}

TEST(ClipboardText, IsJoinedWithQuotesOnlyWhereTheyAreNeeded) {
    EXPECT_EQ(JoinClipboardText({{"5\" mast", "66.0000"}, {"a\tb", ""}}, "\r\n"),
              "5\" mast\t66.0000\r\n\"a\tb\"\t\r\n");
    EXPECT_EQ(JoinClipboardText({}, "\n"), "");
}
