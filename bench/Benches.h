// Benchmark groups; each registers its pairs of "/program" and "/floor".
#pragma once

#include <string>

/// Time from the start of a process to a responsive window: the program against a bare toolkit frame with an
/// identical grid. self is the path of this program.
void RegisterStart(const std::string& self);

/// Creation of a page for each radio type.
void RegisterPages();

/// Anonymous memory that six full pages of 502 rows add to that of the window at its start.
void RegisterMemory(const std::string& self);

/// Opening a full channel file of each radio type.
void RegisterChannelFiles();

/// Importing and exporting comma-separated lists of full pages of several sizes.
void RegisterCsv();

/// Importing full memory files, printed lists and lists of analog radios into pages of several sizes.
void RegisterImports();

/// Checks, set-ups and commands that process all of a page, on full pages of several sizes.
void RegisterEditing();

/// Writing to and reading from a radio that runs at line speed, against the pauses and wire time that the
/// protocol prescribes.
void RegisterAnalogTransfer();

/// The same for a digital radio, with the latest protocol and a full page.
void RegisterDigitalTransfer();

/// Conversion of rows into the records of the digital radios and back, and reading and writing of the bare
/// cells.
void RegisterRecordCodec();

/// Laying out and drawing the sheets of a full page, against the toolkit drawing a plain grid in the same
/// pieces.
void RegisterPrint();

/// Child processes of RegisterStart: show the program's window or the bare one, report on standard output
/// when it responds, and exit.
int RunStartChild(bool bare, int argc, char** argv);

/// Child process of RegisterMemory: prints the memory that the pages have added, in KiB, and exits.
int RunMemoryChild(int argc, char** argv);
