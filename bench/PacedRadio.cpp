#include "bench/PacedRadio.h"

#include <wx/process.h>
#include <wx/utils.h>

#include <thread>
#include <unistd.h>

namespace fs = std::filesystem;

PacedRadio::PacedRadio(const std::string& model, const std::string& options) {
    m_pid =
        wxExecute(wxString(ZELK_RADIO) + " --model " + model + " --name radio --pace --ports-dir " +
                      Folder().string() + " --memories " + (Folder() / "memories").string() + " " + options,
                  wxEXEC_ASYNC);
    for (int tries = 0; tries < 200 && !fs::exists(Port()); ++tries)
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
}

PacedRadio::~PacedRadio() {
    if (m_pid > 0)
        wxProcess::Kill(static_cast<int>(m_pid), wxSIGTERM);
    for (int tries = 0; tries < 100 && fs::is_symlink(Port()); ++tries)
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
    fs::remove(Folder() / "memories");
}

fs::path PacedRadio::Port() const {
    return Folder() / "radio";
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
