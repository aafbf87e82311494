// Text of a printed PDF file.
#pragma once

#include "robot/Process.h"

#include <filesystem>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

/// A word on a sheet. Its box is in millimetres from the sheet's left and upper edge.
struct PdfWord {
    std::string text;
    double left, top, right, bottom;
};

struct PdfPage {
    double width, height; ///< millimetres
    std::vector<PdfWord> words;
};

inline std::string OutputOf(const std::vector<std::string>& command) {
    testbench::Process process(command);
    if (process.WaitForExit() != 0)
        throw std::runtime_error(command[0] + " failed: " + process.Output());
    return process.Output();
}

/// The lines of each sheet in reading order.
inline std::vector<std::vector<std::string>> PdfLines(const std::filesystem::path& file) {
    std::istringstream sheets(OutputOf({"pdftotext", "-layout", file.string(), "-"}));
    std::vector<std::vector<std::string>> pages;
    for (std::string sheet; std::getline(sheets, sheet, '\f');) {
        std::istringstream lines(sheet);
        pages.emplace_back();
        for (std::string line; std::getline(lines, line);)
            if (line.find_first_not_of(' ') != std::string::npos)
                pages.back().push_back(line);
    }
    return pages;
}

/// The sheets with the positions of their words.
inline std::vector<PdfPage> PdfWords(const std::filesystem::path& file) {
    constexpr double Point = 25.4 / 72;
    std::istringstream lines(OutputOf({"pdftotext", "-bbox", file.string(), "-"}));
    std::vector<PdfPage> pages;
    for (std::string line; std::getline(lines, line);) {
        double a, b, c, d;
        if (std::sscanf(line.c_str(), " <page width=\"%lf\" height=\"%lf\"", &a, &b) == 2) {
            pages.push_back({a * Point, b * Point, {}});
        } else if (std::sscanf(line.c_str(), " <word xMin=\"%lf\" yMin=\"%lf\" xMax=\"%lf\" yMax=\"%lf\"", &a,
                               &b, &c, &d) == 4) {
            const size_t begin = line.find('>') + 1;
            const std::string text = line.substr(begin, line.rfind("</word>") - begin);
            pages.back().words.push_back({text, a * Point, b * Point, c * Point, d * Point});
        }
    }
    return pages;
}
