// Common part of the fuzzers of foreign files: the input as a file, and one page for many inputs.
#pragma once

#include "catalogue/RadioTables.h"
#include "files/ZelkFile_ImportExport.h"
#include "fuzz/FuzzWindow.h"

#include <wx/ffile.h>
#include <wx/filename.h>

#include <cstdint>
#include <cstdlib>

/// Writes the input into a file, has the importer identify its kind and passes the path to read, which writes
/// into the grid of a page of that radio and band slot. Always call it with the same page.
template <class Read>
int FuzzFile(const uint8_t* data, size_t size, int radio, int bandIndex, Read read) {
    constexpr int filesOfPage = 100;
    static int files = 0;
    static const wxString path = wxFileName::CreateTempFileName("zelk-fuzz");
    wxFFile out(path, "wb");
    if (!out.IsOpened() || out.Write(data, size) != size || !out.Close())
        std::abort();
    if (files++ % filesOfPage == 0)
        MakeFuzzPage(radio, bandIndex);
    FileImporter importer;
    importer.Identify(path);
    importer.Close();
    read(path);
    CheckFuzzPage();
    return 0;
}
