// Bytes of foreign files read as texts, lines and columns.
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
        {"\xA0", "\xC2\xA0", "\xC2\xA0"}, // a no-break space is a character
        {std::string(" A \0 B", 6), " A ", "A"},
        {std::string("\0A", 2), "", ""},
    };
    for (const auto& [bytes, utf8, trimmed] : cases) {
        EXPECT_EQ(TextFromBytes(bytes).utf8_string(), utf8) << '[' << bytes << ']';
        EXPECT_EQ(TrimmedTextFromBytes(bytes).utf8_string(), trimmed) << '[' << bytes << ']';
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
        EXPECT_EQ(columns.Of(Line).utf8_string(), text) << columns.position;
        EXPECT_EQ(columns.TrimmedOf(Line).utf8_string(), trimmed) << columns.position;
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
    EXPECT_EQ(LinesOf(""), Lines{});
    EXPECT_EQ(LinesOf("a\nb\n"), (Lines{"a", "b"}));
    EXPECT_EQ(LinesOf("a\rb\r"), (Lines{"a", "b"}));
    EXPECT_EQ(LinesOf("a\r\nb\r\n"), (Lines{"a", "b"}));
    EXPECT_EQ(LinesOf("a\n\rb"), (Lines{"a", "", "b"})) << "LFCR are two ends";
    EXPECT_EQ(LinesOf("\r\n\r\nb"), (Lines{"", "", "b"}));
    EXPECT_EQ(LinesOf("a\n\r\n"), (Lines{"a", ""}));
}

TEST_F(ImportedLines, AreTheSameWhereverTheFileIsCutIntoBlocks) {
    const std::string tail = "M\xC3\xBCller\r\nnext\rlast";
    for (size_t length = 4080; length <= 4100; ++length) {
        // Lines of 60 characters, then text that may fall on the end of a block.
        std::string bytes;
        size_t lines = 0;
        for (; bytes.size() + 61 <= length; ++lines)
            bytes += std::string(60, 'x') + "\n";
        bytes += std::string(length - bytes.size(), 'y') + tail;
        const std::vector<std::string> read = LinesOf(bytes);
        ASSERT_EQ(read.size(), lines + 3) << length;
        EXPECT_TRUE(read[lines].ends_with("M\xC3\xBCller")) << length;
        EXPECT_EQ(read[lines + 1], "next") << length;
        EXPECT_EQ(read[lines + 2], "last") << length;
    }
}

TEST_F(ImportedLines, LoseWhatStandsBehindTheHundredthCharacter) {
    const std::string hundred(100, 'x');
    EXPECT_EQ(LinesOf(hundred + "y\nb"), (std::vector<std::string>{hundred, "b"}));
    EXPECT_EQ(LinesOf(hundred + std::string(100'000, 'y') + "\nb"), (std::vector<std::string>{hundred, "b"}));
    EXPECT_EQ(LinesOf(hundred), std::vector<std::string>{hundred});
}
