#include "robot/Files.h"

#include <wx/string.h>
#include <wx/textbuf.h>

#include <fstream>
#include <sstream>
#include <stdexcept>

namespace testbench {

namespace {

std::string ReadRest(std::istream& in) {
    std::string bytes;
    for (char block[4096]; in.read(block, sizeof block), in.gcount() > 0;)
        bytes.append(block, static_cast<size_t>(in.gcount()));
    return bytes;
}

} // namespace

std::string ReadFile(const std::filesystem::path& file) {
    std::ifstream in(file, std::ios::binary);
    if (!in) {
        throw std::runtime_error("can't read " + file.string());
    }
    std::string bytes = ReadRest(in);
    if (in.bad()) {
        throw std::runtime_error("can't read " + file.string());
    }
    return bytes;
}

std::string ReadText(const std::filesystem::path& file) {
    const std::string bytes = ReadFile(file);
    wxString text = wxString::From8BitData(bytes.data(), bytes.size());
    text.Replace(wxTextBuffer::GetEOL(), "\n");
    const wxCharBuffer plain = text.To8BitData();
    return {plain.data(), plain.length()};
}

std::string ReadFileIfAny(const std::filesystem::path& file) {
    std::ifstream in(file, std::ios::binary);
    return ReadRest(in);
}

std::vector<std::string> ReadLines(const std::filesystem::path& file) {
    std::istringstream text(ReadFile(file));
    std::vector<std::string> lines;
    for (std::string line; std::getline(text, line);)
        lines.push_back(line);
    return lines;
}

void WriteFile(const std::filesystem::path& file, const std::string& bytes) {
    std::ofstream out(file, std::ios::binary | std::ios::trunc);
    out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    out.close();
    if (!out) {
        throw std::runtime_error("can't write " + file.string());
    }
}

} // namespace testbench
