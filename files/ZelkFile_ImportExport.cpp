#include "files/ZelkFile_ImportExport.h"

#include "files/CsvImport.h"
#include "files/Import716.h"
#include "files/ImportMultiZEL.h"
#include "files/ImportText.h"

#include <array>
#include <string>

int FileImporter::Identify(const wxString& path) {
    if (m_stream.IsOpened() || !m_stream.Open(path, "rb"))
        return UnknownFile;
    std::string header(HeaderSize716, '\0');
    header.resize(m_stream.Read(header.data(), header.size()));
    if (Is716Header(header))
        return Binary716File;
    RewindText(m_stream);
    LineReader reader(m_stream);
    std::array<wxString, 4> lines;
    for (wxString& line : lines)
        reader.Next(line);
    RewindText(m_stream);
    return KindOfText(lines);
}

bool FileImporter::OpenLines(const wxString& path) {
    m_stream.Close();
    return m_lines.Open(path, wxConvAuto(wxFONTENCODING_ISO8859_1));
}

int FileImporter::Read(int kind) {
    switch (kind) {
    case Binary716File:
        return Import716_Binary(m_stream);
    case Text716File:
        return Import716_Text(m_stream);
    case MultiZELFile:
        return ImportMultiZEL(m_lines);
    case CsvFile:
        return Import_CSV(m_stream);
    case KdarFile:
        return Import_KDAR(m_stream);
    default:
        return 0;
    }
}

void FileImporter::Close() {
    m_stream.Close();
    m_lines.Close();
}
