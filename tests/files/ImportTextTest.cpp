// Bytes of foreign files as texts, lines and columns.
#include "files/ImportText.h"

#include "tests/files/ImportTest.h"

namespace {

class ImportedLines : public ImportTest {
protected:
    /// The lines of a file of these bytes, as UTF-8.
    std::vector<std::string> LinesOf(const std::string& bytes) {
        testbench::WriteFile(m_folder / "file", bytes);
        wxFFile file((m_folder / "file").string(), "rb");
        LineReader reader(file);
        std::vector<std::string> lines;
        for (wxString line; reader.Next(line);)
            lines.push_back(line.utf8_string());
        return lines;
    }
};

const wxString Line = wxString::FromUTF8("ab \tM\xC3\xBCller \t x");

} // namespace

TEST(ImportText, OfBytesIsUtf8OrElseLatin1AndEndsWithAZeroByte) {
    const struct {
        std::string bytes;
        const char *utf8, *trimmed;
    } cases[] = {
        {"", "", ""},
        {"   ", "   ", ""},
        {" A B ", " A B ", "A B"},
        {"\t\v\f\r\nA\t\v\f\r\n", "\t\v\f\r\nA\t\v\f\r\n", "A"},
        {" M\xC3\xBCller ", " M\xC3\xBCller ", "M\xC3\xBCller"},
        {" M\xFCller ", " M\xC3\xBCller ", "M\xC3\xBCller"},
        {"\xA0", "\xC2\xA0", "\xC2\xA0"}, // a hard blank is a character
        {std::string(" A \0 B", 6), " A ", "A"},
        {std::string("\0A", 2), "", ""},
    };
    for (const auto& [bytes, utf8, trimmed] : cases) {
        EXPECT_EQ(utf8, TextFromBytes(bytes).utf8_string()) << '[' << bytes << ']';
        EXPECT_EQ(trimmed, TrimmedTextFromBytes(bytes).utf8_string()) << '[' << bytes << ']';
    }
}

TEST(ImportText, StandsInColumnsOfCharacters) {
    const struct {
        TextColumns columns;
        const char *text, *trimmed;
    } cases[] = {
        {{0, 2}, "ab", "ab"},
        {{2, 8}, " \tM\xC3\xBCller", "M\xC3\xBCller"},
        {{4, 8}, "M\xC3\xBCller \t", "M\xC3\xBCller"},
        {{10, 2}, " \t", ""},
        {{12, 9}, " x", "x"},
        {{13, 1}, "x", "x"},
        {{14, 1}, "", ""},
        {{99, 9}, "", ""},
    };
    for (const auto& [columns, text, trimmed] : cases) {
        EXPECT_EQ(text, columns.Of(Line).utf8_string()) << columns.position;
        EXPECT_EQ(trimmed, columns.TrimmedOf(Line).utf8_string()) << columns.position;
    }
}

TEST(ImportText, IsComparedWhereItStands) {
    EXPECT_TRUE((TextColumns{0, 2}.Is(Line, "ab")));
    EXPECT_TRUE((TextColumns{13, 1}.Is(Line, "x")));
    EXPECT_TRUE((TextColumns{6, 4}.Is(Line, "ller")));
    EXPECT_FALSE((TextColumns{0, 2}.Is(Line, "aB")));
    EXPECT_FALSE((TextColumns{1, 2}.Is(Line, "ab")));
    EXPECT_FALSE((TextColumns{13, 2}.Is(Line, "x ")));
    EXPECT_FALSE((TextColumns{14, 1}.Is(Line, "x")));
    EXPECT_FALSE((TextColumns{99, 1}.Is(Line, "x")));
}

TEST_F(ImportedLines, EndInCrLfOrBoth) {
    using Lines = std::vector<std::string>;
    EXPECT_EQ(Lines{}, LinesOf(""));
    EXPECT_EQ((Lines{"a", "b"}), LinesOf("a\nb\n"));
    EXPECT_EQ((Lines{"a", "b"}), LinesOf("a\rb\r"));
    EXPECT_EQ((Lines{"a", "b"}), LinesOf("a\r\nb\r\n"));
    EXPECT_EQ((Lines{"a", "", "b"}), LinesOf("a\n\rb")) << "LFCR are two ends";
    EXPECT_EQ((Lines{"", "", "b"}), LinesOf("\r\n\r\nb"));
    EXPECT_EQ((Lines{"a", ""}), LinesOf("a\n\r\n"));
}

TEST_F(ImportedLines, AreTheSameWhereverTheFileIsCutIntoBlocks) {
    const std::string tail = "M\xC3\xBCller\r\nnext\rlast";
    for (size_t length = 4080; length <= 4100; ++length) {
        // Lines of 60 characters, then what may lie on a block's end.
        std::string bytes;
        size_t lines = 0;
        for (; bytes.size() + 61 <= length; ++lines)
            bytes += std::string(60, 'x') + "\n";
        bytes += std::string(length - bytes.size(), 'y') + tail;
        const std::vector<std::string> read = LinesOf(bytes);
        ASSERT_EQ(lines + 3, read.size()) << length;
        EXPECT_TRUE(read[lines].ends_with("M\xC3\xBCller")) << length;
        EXPECT_EQ("next", read[lines + 1]) << length;
        EXPECT_EQ("last", read[lines + 2]) << length;
    }
}

TEST_F(ImportedLines, LoseWhatStandsBehindTheHundredthCharacter) {
    const std::string hundred(100, 'x');
    EXPECT_EQ((std::vector<std::string>{hundred, "b"}), LinesOf(hundred + "y\nb"));
    EXPECT_EQ((std::vector<std::string>{hundred, "b"}), LinesOf(hundred + std::string(100'000, 'y') + "\nb"));
    EXPECT_EQ(std::vector<std::string>{hundred}, LinesOf(hundred));
}
