// Common base of the import tests.
#pragma once

#include "editing/PageReset.h"
#include "files/Import716.h"
#include "files/ImportMultiZEL.h"
#include "files/ZelkFile_ImportExport.h"
#include "tests/files/ChannelFileTest.h"
#include "tests/support/Keys.h"
#include "tests/support/Places.h"

#include <wx/log.h>

#include <initializer_list>

/// A text with each part placed at its position.
inline std::string Placed(const std::vector<std::pair<size_t, std::string>>& parts, size_t length = 0) {
    std::string text(length, ' ');
    for (const auto& [position, part] : parts) {
        if (text.size() < position + part.size())
            text.resize(position + part.size(), ' ');
        text.replace(position, part.size(), part);
    }
    return text;
}

inline std::string Joined(const std::vector<std::string>& lines, const std::string& end = "\n") {
    std::string all;
    for (const std::string& line : lines)
        all += line + end;
    return all;
}

/// The header of a 716 binary file.
inline std::string BinaryHeader() {
    return Placed({{0, "ZEL716  "},
                   {8, "2 "},
                   {10, std::string(5, '\0')},
                   {15, "\x01\x01"},
                   {17, "KDRV716 "},
                   {25, std::string(7, '\0')}});
}

/// A record of a 716 binary file. A test sets only the values that it is about.
class BinaryRecord {
public:
    /// A plain memory on 155.7525 MHz.
    explicit BinaryRecord(int number = 5) : m_bytes(106, '\0') {
        Word(4, number).Word(6, number).Text(10, 8, "VCALL10").Word(18, 'N').Word(20, 1).Word(22, 't');
        Text(24, 6, "0001").Word(30, 25).Word(32, 0).Text(34, 6, "293").Text(40, 10, "155.7525");
        Word(50, 't').Text(52, 6, "0001").Word(58, 25).Word(60, 0).Text(62, 6, "293");
        Text(68, 10, "155.7525").Word(84, 1);
    }

    BinaryRecord& Word(size_t offset, int value) {
        m_bytes[offset] = static_cast<char>(value & 0xFF);
        m_bytes[offset + 1] = static_cast<char>(value >> 8);
        return *this;
    }

    BinaryRecord& Text(size_t offset, size_t size, std::string text) {
        text.resize(size, ' ');
        m_bytes.replace(offset, size, text);
        return *this;
    }

    std::string Bytes() const { return m_bytes; }

private:
    std::string m_bytes;
};

inline std::string BinaryFile(std::initializer_list<BinaryRecord> records) {
    std::string bytes = BinaryHeader();
    for (const BinaryRecord& record : records)
        bytes += record.Bytes();
    return bytes;
}

/// A line of a 716 list with a plain memory on 155.7525 MHz, overwritten by the test's parts.
inline std::string ListLine(const std::string& number,
                            const std::vector<std::pair<size_t, std::string>>& parts = {}) {
    std::vector<std::pair<size_t, std::string>> all = {
        {3, number},   {10, "1"},   {13, "VCALL10"}, {23, "n"},   {25, "155.7525"}, {35, "t"},
        {37, "156.7"}, {43, "023"}, {47, "0001"},    {52, "293"}, {56, "155.7525"}, {66, "t"},
        {68, "156.7"}, {74, "023"}, {78, "001"},     {83, "293"},
    };
    all.insert(all.end(), parts.begin(), parts.end());
    return Placed(all);
}

inline std::string UndefinedLine(const std::string& number) {
    return Placed({{3, number}, {36, "UNDEFINED"}}, 86);
}

inline std::vector<std::string> ListTitles() {
    return {Placed({{5, "Basic Information"}, {32, "Rx Information"}}), Placed({{3, "Ch# Scan  Desc"}}),
            "---"};
}

inline std::string ListFile(const std::vector<std::string>& lines, const std::string& end = "\n") {
    std::vector<std::string> all = ListTitles();
    all.insert(all.end(), lines.begin(), lines.end());
    return Joined(all, end);
}

/// A line of a MultiZEL file with a memory on 155.7525 MHz, overwritten by the test's parts.
inline std::string MultiZELLine(const std::string& number,
                                const std::vector<std::pair<size_t, std::string>>& parts = {}) {
    std::vector<std::pair<size_t, std::string>> all = {
        {0, number}, {4, "VCALL10"}, {14, "155.7525"}, {25, "159.4725"}, {33, "TX CTCSS: "}, {43, "25"},
        {48, "21"},  {58, "023"},    {64, "754"},      {70, "1____"},    {75, "N"},
    };
    all.insert(all.end(), parts.begin(), parts.end());
    return Placed(all);
}

/// A file of lines 1 and 2, by which its kind is recognised, followed by these lines.
inline std::string MultiZELFileOf(const std::vector<std::string>& lines, const std::string& end = "\n") {
    return Joined({MultiZELLine("001"), MultiZELLine("002")}, end) + Joined(lines, end);
}

constexpr const char* ByteOrderMark = "\xEF\xBB\xBF";

inline std::string SampleFile(const std::string& name) {
    return testbench::ReadFile(std::filesystem::path(testbench::SamplesFolder()) / name);
}

class ImportTest : public ChannelFileTest {
protected:
    int Identify(const std::string& bytes) {
        testbench::WriteFile(m_folder / "file", bytes);
        FileImporter importer;
        return importer.Identify((m_folder / "file").string());
    }

    /// Reads the bytes into the emptied page as the command does, without its dialogs. Returns the count.
    int Import(const std::string& bytes) {
        testbench::WriteFile(m_folder / "file", bytes);
        const wxString path = (m_folder / "file").string();
        FileImporter importer;
        const int kind = importer.Identify(path);
        const bool opened = kind != MultiZELFile || importer.OpenLines(path);
        EXPECT_TRUE(opened);
        ResetPage(CurrentPage);
        EmptyDefaultMemories(CurrentPage);
        const int count = importer.Read(kind);
        SetPageEditors(CurrentPage);
        return count;
    }

    static bool IsPainted(int row, int col) {
        return CurrentGrid()->GetCellBackgroundColour(row, col) == FailColour;
    }

    static std::vector<int> Rows(std::initializer_list<int> rows) { return rows; }
};
