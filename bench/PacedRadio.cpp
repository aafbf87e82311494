#include "bench/PacedRadio.h"

#include <unistd.h>

namespace fs = std::filesystem;

namespace {

std::vector<std::string> Arguments(const std::string& model, const std::vector<std::string>& options) {
    std::vector<std::string> arguments{"--model",
                                       model,
                                       "--name",
                                       "radio",
                                       "--pace",
                                       "--ports-dir",
                                       PacedRadio::Folder(),
                                       "--memories",
                                       PacedRadio::Folder() / "memories"};
    arguments.insert(arguments.end(), options.begin(), options.end());
    return arguments;
}

} // namespace

PacedRadio::PacedRadio(const std::string& model, const std::vector<std::string>& options)
    : m_process(ZELK_RADIO, Arguments(model, options)) {
    m_process.RequireReady();
}

PacedRadio::~PacedRadio() {
    m_process.Terminate();
    fs::remove(Folder() / "memories");
}

fs::path PacedRadio::Folder() {
    const fs::path folder = fs::temp_directory_path() / ("zelk-bench-" + std::to_string(getpid()));
    fs::create_directories(folder);
    return folder;
}

void Prescribed(benchmark::State& state, double seconds) {
    for ([[maybe_unused]] auto _ : state)
        state.SetIterationTime(seconds);
}
