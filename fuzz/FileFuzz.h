// Common part of the fuzzers of files: the input as a file, and a few pages for many inputs.
#pragma once

#include "files/FileKind.h"
#include "files/ZelkFile_ImportExport.h"
#include "fuzz/FuzzWindow.h"

#include <wx/ffile.h>

#include <sys/mman.h>
#include <unistd.h>

#include <cstdint>
#include <cstdlib>

/// Returns the path of a file in memory that holds the input until the next call.
inline const wxString& FuzzPath(const uint8_t* data, size_t size) {
    static const int file = memfd_create("input", 0);
    static const wxString path = wxString::Format("/proc/self/fd/%d", file);
    if (ftruncate(file, 0) != 0 || pwrite(file, data, size, 0) != static_cast<ssize_t>(size))
        std::abort();
    return path;
}

/// Makes a file of the input and imports it into the grid of a page, as the kind that it seems to be. Unless
/// that is this kind, passes its path to read as well.
template <class Read>
int FuzzFile(const uint8_t* data, size_t size, FileKind kind, Read read) {
    constexpr int filesOfPage = 100;
    const wxString& path = FuzzPath(data, size);
    ChooseFuzzPage(size, filesOfPage);
    FileImporter importer;
    const int found = importer.Identify(path);
    if (found != MultiZELFile || importer.OpenLines(path))
        importer.Read(found);
    importer.Close();
    if (found != kind)
        read(path);
    CheckFuzzPage();
    return 0;
}
