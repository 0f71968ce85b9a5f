// A working folder of its own for a benchmark, made in memory-backed storage where there is one, so that what
// is measured is the program and not the disk.
#pragma once

#include <filesystem>

namespace quillon::bench {

class WorkingFolder {
public:
    WorkingFolder();
    ~WorkingFolder();
    WorkingFolder(const WorkingFolder&) = delete;
    WorkingFolder& operator=(const WorkingFolder&) = delete;

private:
    std::filesystem::path folder_;
    std::filesystem::path before_;
};

} // namespace quillon::bench
