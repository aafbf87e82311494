// The groups of benchmarks; each registers its pairs of "/program" and "/floor".
#pragma once

#include <string>

/// From the start of a process to a window that answers: the program against a bare toolkit frame with
/// one equal grid. self is this program's own path.
void RegisterStart(const std::string& self);

/// Making a page for each radio type.
void RegisterPages();

/// What six full pages of 502 rows add to the anonymous memory of the window as it starts.
void RegisterMemory(const std::string& self);

/// Opening a full channel file of each radio type.
void RegisterChannelFiles();

/// Importing and exporting comma-separated lists of full pages of several sizes.
void RegisterCsv();

/// Importing full memory files, printed lists and lists of analog radios into pages of several sizes.
void RegisterImports();

/// The checks, set-ups and commands that go over a whole page, on full pages of several sizes.
void RegisterEditing();

/// Sending to and reading from a radio that keeps the line's pace, against the pauses and wire time
/// that the protocol prescribes.
void RegisterAnalogTransfer();

/// The same with a digital radio, by the latest protocol and on a full page.
void RegisterDigitalTransfer();

/// Rows made into the records of the digital radios and back, and the bare cells read and written.
void RegisterRecordCodec();

/// Laying out and drawing the sheets of a full page, against the toolkit drawing a plain grid in the same
/// pieces.
void RegisterPrint();

/// The child processes of RegisterStart: run the program's window or the bare one until it answers,
/// say so on standard output, and end.
int RunStartChild(bool bare, int argc, char** argv);

/// The child process of RegisterMemory: prints what the pages have added, in KiB, and ends.
int RunMemoryChild(int argc, char** argv);
