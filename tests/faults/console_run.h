// The console run on a folder in a process of its own, with faults in its way.
#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <vector>

namespace faults {

/// Every file below a folder by its path there, with its bytes, but for what is kept against a crash.
using Files = std::map<std::string, std::string>;
Files filesBelow(const std::filesystem::path& folder);

/// Whether each card that is kept against a crash is whole, with its checksum.
bool keptCardsAreWhole(const std::filesystem::path& folder);

/// Makes `copy` the same as `folder`.
void copyFolder(const std::filesystem::path& folder, const std::filesystem::path& copy);

/// A folder that is gone with the object; in memory where the system has a place for that.
class TemporaryFolder {
public:
    TemporaryFolder();
    ~TemporaryFolder();
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    const std::filesystem::path& path() const { return path_; }
    std::filesystem::path operator/(const char* name) const { return path_ / name; }

private:
    std::filesystem::path path_;
};

enum class Kind {
    none,
    fail, ///< one call fails
    stay, ///< one call and all after it fail
    kill, ///< the process dies in front of one call
    torn, ///< the process dies after half of a write
};

struct Fault {
    Kind kind = Kind::none;
    long at = 0; ///< the call, counted from 1
};

struct Limits {
    long fileSize = -1;  ///< bytes that a file may have; -1: any
    int user = 0;        ///< the user to run as; 0: the one who runs the test
    std::string input{}; ///< what is read instead of the script
};

struct Outcome {
    bool killed = false;
    int status = -1; ///< of a process that ended by itself
    std::string transcript{};
    std::vector<std::string> calls{}; ///< that change files, in their order
};

/// A console at work. Reads its script from a pipe; what it prints is read by wait().
class ConsoleProcess {
public:
    ConsoleProcess(const std::filesystem::path& folder, const std::string& script, Fault fault = {},
                   Limits limits = {});
    ~ConsoleProcess();
    ConsoleProcess(const ConsoleProcess&) = delete;
    ConsoleProcess& operator=(const ConsoleProcess&) = delete;

    Outcome wait();

private:
    TemporaryFolder aside_; ///< script, transcript and log, none of them in the folder at work
    int process_ = -1;
    int transcript_ = -1;
};

Outcome runConsole(const std::filesystem::path& folder, const std::string& script, Fault fault = {},
                   Limits limits = {});

} // namespace faults
