// Comparison of the user guide with the program: the guide must cover all that the program shows or knows.
#include "catalogue/RadioCatalogue.h"
#include "commands/CommandQuestions.h"
#include "files/FileKind.h"
#include "frame/CommandTables.h"
#include "simulator/Options.h"
#include "tests/docs/GuideSource.h"
#include "tests/docs/ProgramTexts.h"
#include "tests/docs/SourceTexts.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <iomanip>
#include <set>
#include <sstream>

using namespace docstest;
using namespace RadioCatalogue;
namespace fs = std::filesystem;

namespace {

const fs::path Folder = ZELK_SOURCE_DIR;
const fs::path GuideFolder = Folder / "docs/guide";

const std::string& Source() {
    static const std::string source = GuideSource(GuideFolder);
    return source;
}

const std::string& Plain() {
    static const std::string plain = PlainText(Source());
    return plain;
}

const std::vector<std::string>& Cells() {
    static const std::vector<std::string> cells = MessageCells(Source());
    return cells;
}

bool HasMessage(const std::string& message) {
    return std::any_of(Cells().begin(), Cells().end(),
                       [&](const std::string& cell) { return CellHasMessage(cell, message); });
}

std::string TitledText(const ProgramText& text) {
    return *text.title ? std::string(text.title) + ' ' + text.text : text.text;
}

/// The label as shown in a menu.
std::string WithoutMnemonic(std::string label) {
    label.erase(std::remove(label.begin(), label.end(), '&'), label.end());
    return label;
}

std::string Code(const std::string& text) {
    return "`+" + text + "+`";
}

void ExpectInSource(const std::string& text) {
    EXPECT_NE(Source().find(text), std::string::npos) << "the guide lacks: " << text;
}

template <size_t count>
void ExpectMenu(const MenuEntry (&menu)[count]) {
    for (const MenuEntry& entry : menu)
        if (entry.label)
            ExpectInSource("\n|" + Code(WithoutMnemonic(entry.label)) + " |" + Code(entry.help) + " |");
}

/// A cell of a table, with its cell signs escaped.
std::string Cell(std::string text) {
    for (size_t at = 0; (at = text.find('|', at)) != std::string::npos; at += 2)
        text.insert(at, "\\");
    return text;
}

/// The literal blocks in the guide, from the heading with this identity on.
std::vector<std::string> Blocks(const std::string& identity) {
    std::vector<std::string> blocks;
    const std::string fence = "\n----\n";
    size_t at = Source().find("[#" + identity + "]");
    while (at != std::string::npos && (at = Source().find(fence, at)) != std::string::npos) {
        const size_t start = at + fence.size();
        at = Source().find(fence, start);
        blocks.push_back(Source().substr(start, at - start));
        at += fence.size();
    }
    return blocks;
}

FileKind KindOfBlock(const std::string& block) {
    std::istringstream in(block);
    std::array<wxString, 4> lines;
    for (wxString& line : lines)
        if (std::string text; std::getline(in, text))
            line = text;
    return KindOfText(lines);
}

/// The words of a command line after the program's name; double quotes keep a word together.
std::vector<std::string> ArgumentsOf(const std::string& command) {
    std::istringstream in(command);
    std::vector<std::string> words;
    for (std::string word; in >> std::quoted(word);)
        words.push_back(word);
    words.erase(words.begin());
    return words;
}

/// The text between backquotes at the start of the cells that begin with `start`.
std::vector<std::string> CodesBeginning(const std::string& start) {
    std::vector<std::string> codes;
    for (size_t at = 0; (at = Source().find("\n|`" + start, at)) != std::string::npos; ++at)
        codes.push_back(Source().substr(at + 3, Source().find('`', at + 3) - at - 3));
    return codes;
}

void ExpectUnderstood(const std::vector<std::string>& arguments) {
    Simulator::Options options;
    std::string problem;
    EXPECT_TRUE(Simulator::ParseOptions(arguments, options, problem)) << problem;
}

std::string WithoutBlanks(const std::string& text) {
    std::string rest;
    std::copy_if(text.begin(), text.end(), std::back_inserter(rest),
                 [](unsigned char c) { return !std::isspace(c); });
    return rest;
}

std::string OutputOf(const std::string& command) {
    std::string output;
    FILE* const pipe = popen(command.c_str(), "r");
    char block[4096];
    while (const size_t count = std::fread(block, 1, sizeof block, pipe))
        output.append(block, count);
    pclose(pipe);
    return output;
}

} // namespace

TEST(Guide, HasEveryTextThatTheProgramShows) {
    ASSERT_GT(Cells().size(), 90u);
    for (const ProgramText& text : ProgramTexts)
        EXPECT_TRUE(HasMessage(TitledText(text))) << "no such message: " << TitledText(text);
}

TEST(Guide, HasNoMessageThatTheProgramLacks) {
    for (const std::string& cell : Cells())
        EXPECT_TRUE(std::any_of(ProgramTexts.begin(), ProgramTexts.end(), [&](const ProgramText& text) {
            return CellHasMessage(cell, TitledText(text));
        })) << cell;
}

TEST(Guide, HasEveryTextThatTheSourceGivesToBoxesAndStatus) {
    const auto shown = ShownLiteralsOfProgram(Folder);
    ASSERT_GT(shown.size(), 80u);
    for (const auto& [file, text] : shown) {
        if (std::none_of(text.begin(), text.end(), [](unsigned char c) { return std::isalpha(c); }))
            continue;
        EXPECT_TRUE(HasMessage(text) || Plain().find(Squeezed(text)) != std::string::npos)
            << file << ": " << text;
    }
}

TEST(Guide, TellsOfNoTextThatTheSourceHasNot) {
    std::set<std::string> texts;
    for (const auto& [file, text] : LiteralsOfProgram(Folder))
        texts.insert(Squeezed(text));
    for (const ProgramText& text : ProgramTexts) {
        if (text.composed)
            continue;
        EXPECT_TRUE(texts.count(Squeezed(text.text)) != 0) << text.text;
        if (!std::string(text.title).empty()) {
            EXPECT_TRUE(texts.count(Squeezed(text.title)) != 0) << text.title;
        }
    }
}

TEST(Guide, HasEveryMenuEntryWithItsHelp) {
    ExpectMenu(FileMenu);
    ExpectMenu(PageMenu);
    ExpectMenu(DataMenu);
    ExpectMenu(SettingsMenu);
    ExpectMenu(HelpMenu);
}

TEST(Guide, HasTheQuestionOfEveryCommand) {
    for (const CommandQuestion& question : CommandQuestions)
        EXPECT_TRUE(HasMessage(std::string(question.caption) + ' ' + question.message)) << question.caption;
}

TEST(Guide, HasEveryTool) {
    for (const ToolEntry& tool : Tools)
        if (tool.label)
            ExpectInSource("\n|" + Code(tool.label) + " |" + Code(tool.shortHelp) + " |" +
                           Code(tool.longHelp) + " |");
}

TEST(Guide, HasEveryEntryOfTheContextMenus) {
    for (const MenuEntry& entry : ContextMenu)
        ExpectInSource("\n|" + Code(WithoutMnemonic(entry.label)) + " |");
}

TEST(Guide, TellsOfEveryColumn) {
    for (int column = 0; column < ColumnTotal; ++column)
        ExpectInSource(std::string("`") + ColumnTag[column] + "`");
}

TEST(Guide, HasTheHeadingsOfEveryColumnThatIsShown) {
    for (int column = 0; column < ColumnTotal; ++column) {
        std::string row = std::string("\n|`") + ColumnTag[column] + "`";
        bool shown = false;
        for (int type = 0; type < TypeTotal; ++type) {
            const std::string heading = ColumnHeading[type][column];
            row += " |" + heading;
            shown = shown || !heading.empty();
        }
        if (shown)
            ExpectInSource(row + '\n');
    }
}

TEST(Guide, HasEveryRadioWithItsBandsRowsAndGuards) {
    for (int radio = 0; radio < RadioTotal; ++radio) {
        wxArrayString offered;
        MakeBandList(radio, offered);
        for (int slot = 0; slot < BandSlotTotal && RadioBands[radio][slot] >= 0; ++slot) {
            const int band = RadioBands[radio][slot];
            const int rows = RadioRows[radio][slot];
            const bool oneBand = RadioBands[radio][1] < 0;
            const std::string guards =
                rows % 10 == 2 ? std::to_string(rows - 1) + ", " + std::to_string(rows) : std::string("none");
            ExpectInSource("\n|" + Cell(RadioLabel[radio]) + " |" +
                           (oneBand ? "not asked" : offered[static_cast<size_t>(slot)].utf8_string()) + " |" +
                           BandName[band] + " |`" + RadioTypeName[GetRadioType(radio, band)] + "` |" +
                           std::to_string(rows) + " |" + guards + " |");
        }
    }
}

TEST(Guide, HasTheHeadingsOfLists) {
    const wxArrayString names = wxSplit(CsvHeader, ',');
    const auto marked = [&](const unsigned char* mask) {
        std::string all;
        for (size_t i = 0; i < CsvFieldTotal; ++i)
            if (!mask || mask[i])
                all += (all.empty() ? "`" : ", `") + names[i].utf8_string() + '`';
        return all;
    };
    ExpectInSource("The headings are: " + marked(nullptr) + ".\n");
    for (int type = 0; type < TypeTotal; ++type)
        if (type != KDAR)
            ExpectInSource(std::string("\n|`") + RadioTypeName[type] + "` |" + marked(CsvFieldMask[type]) +
                           '\n');
    ExpectInSource(std::string("\n") + KdarCsvHeader + '\n');
    ExpectInSource(KdarCsvBanner);
}

TEST(Guide, ShowsListsThatAnImportRecognises) {
    const std::vector<std::string> general = Blocks("csv"), kdar = Blocks("kdar-csv");
    ASSERT_FALSE(general.empty() || kdar.empty());
    EXPECT_EQ(KindOfBlock(general[0]), CsvFile) << general[0];
    EXPECT_EQ(KindOfBlock(kdar[0]), KdarFile) << kdar[0];
}

TEST(Guide, GivesCommandsThatTheSimulatedRadioUnderstands) {
    int commands = 0;
    for (const std::string& block : Blocks("simulated-radios"))
        if (block.starts_with("zelk-radio --")) {
            ExpectUnderstood(ArgumentsOf(block));
            ++commands;
        }
    EXPECT_GE(commands, 2);

    const std::vector<std::string> options = CodesBeginning("--");
    ASSERT_GE(options.size(), 8u);
    for (const std::string& option : options)
        EXPECT_NE(Simulator::HelpText().find("  " + option.substr(0, option.find_first_of(" [")) + ' '),
                  std::string::npos)
            << option;
    for (size_t at = 0; (at = Source().find("@5`", at)) != std::string::npos; ++at) {
        const size_t start = Source().rfind('`', at) + 1;
        ExpectUnderstood({"--model", "KDRV-716", "--fault", Source().substr(start, at + 2 - start)});
    }
}

TEST(Guide, TellsEveryCodeOfAChannelFileThatCannotBeOpened) {
    for (int code = 101; code <= 109; ++code)
        ExpectInSource("\n|" + std::to_string(code) + " |");
}

TEST(Guide, ShowsPicturesThatAreThereAndSmall) {
    std::set<std::string> shown;
    for (size_t at = 0; (at = Source().find("image::", at)) != std::string::npos; ++at)
        shown.insert(Source().substr(at + 7, Source().find('[', at) - at - 7));
    ASSERT_GT(shown.size(), 20u);
    for (const std::string& picture : shown) {
        const fs::path file = GuideFolder / "images" / picture;
        ASSERT_TRUE(fs::exists(file)) << picture;
        EXPECT_LT(fs::file_size(file), 100'000u) << picture;
    }
    shown.insert("start.png"); // on the title page
    for (const auto& entry : fs::directory_iterator(GuideFolder / "images"))
        EXPECT_TRUE(shown.count(entry.path().filename()) != 0) << entry.path().filename() << " is not shown";
}

TEST(Guide, AsPdfHasEveryTextThatTheProgramShows) {
    if (!fs::exists(ZELK_GUIDE_PDF))
        FAIL() << "the PDF has not been built (Debian package ruby-asciidoctor-pdf)";
    if (std::system("pdftotext -v >/dev/null 2>&1") != 0)
        FAIL() << "pdftotext is missing (Debian package poppler-utils)";
    const std::string pdf =
        WithoutBlanks(OutputOf(std::string("pdftotext -raw -enc UTF-8 '") + ZELK_GUIDE_PDF + "' -"));
    ASSERT_GT(pdf.size(), 30000u);
    for (const std::string& cell : Cells())
        EXPECT_NE(pdf.find(WithoutBlanks(cell)), std::string::npos) << cell;
}

TEST(SourceTexts, JoinsNeighboursAndResolvesEscapes) {
    EXPECT_EQ(LiteralsOf("f(\"a \" // not \"this\"\n \"b\\n\", 'c', \"\\\"d\\\"\");"),
              (std::vector<std::string>{"a b\n", "\"d\""}));
}

TEST(SourceTexts, FindsWhatIsShown) {
    EXPECT_EQ(ShownLiteralsOf("g(\"no\"); wxMessageBox(x ? \"a\" : \"b\", \"title\"); h(\"no\");"),
              (std::vector<std::string>{"a", "b", "title"}));
    EXPECT_EQ(ShownLiteralsOf("wxMessageDialog ask(this, \"text\", \"title\");"),
              (std::vector<std::string>{"text", "title"}));
    EXPECT_EQ(ShownLiteralsOf("context.StatusText = \"a\"; x = \"no\"; if (StatusText == \"no\") ;"),
              (std::vector<std::string>{"a"}));
}

TEST(MessageCell, MayHaveATitleAndOtherNumbers) {
    EXPECT_TRUE(CellHasMessage("Error Radio rejected channel 5", "Radio rejected channel %d"));
    EXPECT_TRUE(CellHasMessage("Error Timeout", "Timeout"));
    EXPECT_FALSE(CellHasMessage("ErrorTimeout", "Timeout"));
    EXPECT_FALSE(CellHasMessage("Radio rejected channel", "Radio rejected channel %d"));
    EXPECT_FALSE(CellHasMessage("What (now)?", "What now?"));
}
