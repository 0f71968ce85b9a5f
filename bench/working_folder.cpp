#include "working_folder.h"

#include <cstdlib>
#include <stdexcept>
#include <string>

namespace quillon::bench {
namespace {

namespace fs = std::filesystem;

fs::path freshFolder() {
    const char* chosen = std::getenv("QUILLON_BENCH_FOLDER");
    const fs::path base = chosen                   ? fs::path{chosen}
                          : fs::exists("/dev/shm") ? "/dev/shm"
                                                   : fs::temp_directory_path();
    std::string pattern = (base / "quillon-bench-XXXXXX").string();
    if (mkdtemp(pattern.data()) == nullptr) throw std::runtime_error("no temporary folder");
    return pattern;
}

} // namespace

WorkingFolder::WorkingFolder() : folder_(freshFolder()), before_(fs::current_path()) {
    fs::current_path(folder_);
}

WorkingFolder::~WorkingFolder() {
    fs::current_path(before_);
    std::error_code error;
    fs::remove_all(folder_, error);
}

} // namespace quillon::bench
