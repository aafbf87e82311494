#include "bench/PacedRadio.h"

#include <unistd.h>

#include <fstream>
#include <iterator>

namespace fs = std::filesystem;

namespace {

struct OwnFolder {
    fs::path path = fs::temp_directory_path() / ("zelk-bench-" + std::to_string(getpid()));

    OwnFolder() { fs::create_directories(path); }
    ~OwnFolder() {
        std::error_code error;
        fs::remove_all(path, error);
    }
    OwnFolder(const OwnFolder&) = delete;
    OwnFolder& operator=(const OwnFolder&) = delete;
};

fs::path ReplyTimesFile() {
    return PacedRadio::Folder() / "reply-times";
}

std::vector<std::string> Arguments(const std::string& model, const fs::path& memories,
                                   const std::vector<std::string>& options) {
    std::vector<std::string> arguments{
        "--model",    model,    "--name",        "radio",          "--ports-dir", PacedRadio::Folder(),
        "--memories", memories, "--reply-times", ReplyTimesFile(), "--pace"};
    arguments.insert(arguments.end(), options.begin(), options.end());
    return arguments;
}

} // namespace

PacedRadio::PacedRadio(const std::string& model, const fs::path& memories,
                       const std::vector<std::string>& options)
    : m_process(ZELK_RADIO, Arguments(model, memories, options)) {
    m_process.RequireReady();
}

std::vector<double> PacedRadio::ReplyTimes() const {
    std::ifstream file(ReplyTimesFile());
    return {std::istream_iterator<double>(file), {}};
}

fs::path PacedRadio::Folder() {
    static const OwnFolder folder;
    return folder.path;
}
