// Where what tests use stands.
#pragma once

#include <string>

namespace testbench {

// Absolute paths without a slash at the end. They are in a source of their own, so that the compiler's cache
// knows a test in every clone.

/// The example files that are installed with the program.
std::string ExamplesFolder();

/// The sample files of other tools, and hostile ones.
std::string SamplesFolder();

/// Transcripts of dialogues with digital radios.
std::string TranscriptsFolder();

/// The program of the simulated radio.
std::string RadioProgram();

} // namespace testbench
