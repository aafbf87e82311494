#include "tests/support/Places.h"

namespace testbench {

std::string ExamplesFolder() {
    return ZELK_EXAMPLES_DIR;
}

std::string SamplesFolder() {
    return ZELK_SAMPLES_DIR;
}

std::string TranscriptsFolder() {
    return ZELK_TRANSCRIPTS;
}

std::string RadioProgram() {
    return ZELK_RADIO;
}

} // namespace testbench
