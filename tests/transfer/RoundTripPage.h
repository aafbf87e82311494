// A full page of memories of all kinds, and the changes to its cells on their way to a radio and back.
#pragma once

#include "catalogue/PageModel.h"

#include <array>
#include <map>
#include <string>
#include <vector>

namespace transfertest {

using CellTexts = std::array<std::string, ColumnTotal>;

/// Text of a column's cells after the round trip. A column without a rule comes back unchanged.
struct ColumnRule {
    std::vector<int> columns;
    const char* reason;
    std::string (*after)(const CellTexts& before, int column);
    /// Former text of a cell that is painted because the received text wasn't in its list.
    const char* painted = "";
};

/// A primary and its shadows by slot; 0 for a free slot.
struct Family {
    int primary;
    std::array<int, 7> shadows;
};

inline const Family Families[] = {
    {20, {21, 22, 23, 24, 25, 26, 27}},
    {120, {121}},
    {200, {201, 0, 219, 0, 0, 0, 218}},
};

/// The texts of the lists, in the order of the radios' numbers.
inline const std::vector<std::string> Tones = {
    "67.0",  "69.3",  "71.9",  "74.4",  "77.0",  "79.7",  "82.5",  "85.4",  "88.5",  "91.5",  "94.8",
    "97.4",  "100.0", "103.5", "107.2", "110.9", "114.8", "118.8", "123.0", "127.3", "131.8", "136.5",
    "141.3", "146.2", "151.4", "156.7", "162.2", "167.9", "173.8", "179.9", "186.2", "192.8", "203.5",
    "210.7", "218.1", "225.7", "233.6", "241.8", "250.3", "206.5", "229.1", "254.8"};
inline const std::vector<std::string> Codes = {
    "OFF", "023", "025", "026", "031", "032", "043", "047", "051", "054", "065", "071", "072", "073",
    "074", "114", "115", "116", "125", "131", "132", "134", "143", "152", "155", "156", "162", "165",
    "172", "174", "205", "223", "226", "243", "244", "245", "251", "261", "263", "265", "271", "306",
    "311", "315", "331", "343", "346", "351", "364", "365", "371", "411", "412", "413", "423", "431",
    "432", "445", "464", "465", "466", "503", "506", "516", "532", "546", "565", "606", "612", "624",
    "627", "631", "632", "654", "662", "664", "703", "712", "723", "731", "732", "734", "743", "754"};
inline const std::vector<std::string> Zones = {"1",  "2",  "3",  "4",  "5",  "6", "7", "8", "9", "10", "11",
                                               "12", "13", "14", "15", "16", "A", "C", "E", "F", "H",  "I",
                                               "K",  "L",  "M",  "N",  "P",  "T", "U", "V", "W", "X"};
/// Texts of the P25 pages' default rows.
inline const std::string DefaultTone = "67.0", DefaultCode = "023";

inline std::string Formatted(const char* format, int value) {
    return wxString::Format(wxString(format), value).utf8_string();
}

/// The differences between pages.
struct RoundTripShape {
    int rows;           ///< memories; the last two are the guards
    int zones;          ///< zones of the other memories, used in turn
    const char* guards; ///< zone of the guards
    bool squelchValues; ///< whether RNSV is filled
    int frequencyDecimals;
};

/// Makes a page of memories.
class RoundTripPage {
public:
    explicit RoundTripPage(const RoundTripShape& shape)
        : m_squelchValues(shape.squelchValues), m_decimals(shape.frequencyDecimals) {
        const int rows = shape.rows;
        int placed = 0; // memories with a zone of their own
        for (int row = 1; row <= rows; ++row) {
            m_cells[row] = Plain(row);
            if (row > rows - 2)
                m_cells[row][ZONE] = shape.guards;
            else if (!IsShadow(row))
                m_cells[row][ZONE] = Zones[static_cast<size_t>(placed++ % shape.zones)];
        }
        for (const Family& family : Families)
            Link(family);
    }

    const std::map<int, CellTexts>& Rows() const { return m_cells; }

private:
    static bool IsShadow(int row) {
        for (const Family& family : Families)
            for (const int shadow : family.shadows)
                if (shadow == row)
                    return true;
        return false;
    }

    std::string Frequency(int hertz) const {
        const std::string text = Formatted("%d.", hertz / 1'000'000) + Formatted("%06d", hertz % 1'000'000);
        // Four decimals, and a fifth unless it is 0.
        return text.substr(0, m_decimals == 5 && text[8] != '0' ? 9 : 8);
    }

    CellTexts Plain(int row) const {
        const auto pick = [](const std::vector<std::string>& list, int at) {
            return list[static_cast<size_t>(at) % list.size()];
        };
        const auto letter = [](const std::string& letters, int at) {
            return std::string(1, letters[static_cast<size_t>(at) % letters.size()]);
        };
        const bool digital = row % 3 == 2;
        const int lastDigit = m_decimals == 5 && row % 8 == 5 ? 1250 : 0;
        CellTexts cells;
        cells[MFLG] = row % 5 == 3 ? "08" : "00";
        cells[MNUM] = cells[PRIM] = Formatted("%03d", row);
        cells[SHAD] = "N";
        cells[BAND] = "FM 136-174";
        cells[SCAN] = row % 5 == 3 ? "Y" : "N";
        cells[DESC] = row % 10 == 4 ? "HILL  " : Formatted(row % 2 ? "CH-%05d" : "/%d +", row);
        cells[MODE] = letter("wnD", row);
        cells[RFRQ] = Frequency(136'000'000 + row * 75'000 + lastDigit);
        cells[TFRQ] = Frequency(174'000'000 - row * 75'000 - lastDigit);
        cells[RSQL] = letter(digital ? "mng" : "xtc", row / 3);
        cells[TSQL] = letter(digital ? "gi-" : "xtc-", row / 3);
        cells[RNSV] = m_squelchValues ? std::to_string(row % 16) : "";
        cells[RTON] = row % 47 == 0 ? "OFF" : pick(Tones, row);
        cells[TTON] = row % 43 == 0 ? "OFF" : pick(Tones, row * 5);
        cells[RCOD] = pick(Codes, row);
        cells[TCOD] = pick(Codes, row * 5);
        cells[RTGP] = Formatted("%04X", row * 131 % 0x10000);
        cells[TTGP] = Formatted("%04X", 0xFFFF - row);
        cells[RNAC] = Formatted("%03X", row * 7 % 0x1000);
        cells[TNAC] = Formatted("%03X", 0xFFF - row);
        cells[TIDC] = Formatted(row % 4 ? "%07d" : "%d", row * 19937 % 10'000'000);
        for (int column = SHD0; column <= SHD6; ++column)
            cells[static_cast<size_t>(column)] = "0";
        cells[TFLG] = "A1";
        return cells;
    }

    void Link(const Family& family) {
        CellTexts& primary = m_cells[family.primary];
        int count = 0;
        for (int slot = 0; slot < 7; ++slot) {
            const int row = family.shadows[static_cast<size_t>(slot)];
            if (row == 0)
                continue;
            ++count;
            primary[static_cast<size_t>(SHD0 + slot)] = Formatted("%03d", row);
            CellTexts& shadow = m_cells[row];
            shadow[MFLG] = Formatted("%02X", slot + 1);
            shadow[PRIM] = Formatted("%03d", family.primary);
            shadow[SHAD] = "S-" + shadow[PRIM];
            shadow[SCAN] = "N";
            for (const int column : {ZONE, RFRQ, TFRQ})
                shadow[static_cast<size_t>(column)] = primary[static_cast<size_t>(column)];
        }
        primary[MFLG] = "10";
        primary[SHAD] = Formatted("P-%d", count);
        primary[SCAN] = "N";
    }

    bool m_squelchValues;
    int m_decimals;
    std::map<int, CellTexts> m_cells;
};

// ---- Changes to cells ----

inline std::string WithoutZeros(const CellTexts& before, int column) {
    return std::to_string(std::stoi(before[static_cast<size_t>(column)]));
}
inline std::string Emptied(const CellTexts&, int) {
    return "";
}
inline std::string OwnZoneOnly(const CellTexts& before, int) {
    return before[SHAD].starts_with("S") ? "" : before[ZONE];
}
inline std::string Trimmed(const CellTexts& before, int column) {
    const std::string& text = before[static_cast<size_t>(column)];
    return text.substr(0, text.find_last_not_of(' ') + 1);
}
inline std::string NineCharacters(const CellTexts& before, int column) {
    return (before[static_cast<size_t>(column)] + "00000").substr(0, 9);
}
inline std::string EightCharacters(const CellTexts& before, int column) {
    return before[static_cast<size_t>(column)].substr(0, 8);
}
inline std::string KnownTone(const CellTexts& before, int column) {
    const std::string& text = before[static_cast<size_t>(column)];
    return text == "OFF" ? DefaultTone : text;
}
inline std::string KnownCode(const CellTexts& before, int column) {
    const std::string& text = before[static_cast<size_t>(column)];
    return text == "OFF" ? DefaultCode : text;
}
inline std::string NextCode(const CellTexts& before, int column) {
    for (size_t at = 0; at + 1 < Codes.size(); ++at)
        if (Codes[at] == before[static_cast<size_t>(column)])
            return Codes[at + 1];
    return DefaultCode;
}
inline std::string SevenDigits(const CellTexts& before, int column) {
    return Formatted("%07d", std::stoi(before[static_cast<size_t>(column)]));
}
inline std::string TwoPlaces(const CellTexts& before, int column) {
    return Formatted("%2d", std::stoi(before[static_cast<size_t>(column)]));
}
inline std::string Ten(const CellTexts&, int) {
    return "10";
}
inline std::string ReadFlags(const CellTexts&, int) {
    return "C8";
}

} // namespace transfertest
