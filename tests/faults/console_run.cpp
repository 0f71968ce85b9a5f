#include "console_run.h"

#include "core/packing.h"

#include <algorithm>
#include <array>
#include <csignal>
#include <cstdlib>
#include <fstream>
#include <sstream>
#include <stdexcept>

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace faults {

namespace fs = std::filesystem;

namespace {

std::string bytesOf(const fs::path& path) {
    std::ifstream file{path, std::ios::binary};
    std::ostringstream content;
    content << file.rdbuf();
    return content.str();
}

std::vector<std::string> linesOf(const std::string& text) {
    std::vector<std::string> lines;
    std::istringstream in{text};
    for (std::string line; std::getline(in, line);) lines.push_back(line);
    return lines;
}

const char* nameOf(Kind kind) {
    constexpr std::array names{"none", "fail", "stay", "kill", "torn"};
    return names[static_cast<std::size_t>(kind)];
}

void limit(const Limits& limits) {
    if (limits.fileSize >= 0) {
        const auto size = static_cast<rlim_t>(limits.fileSize);
        const rlimit bytes{size, size};
        setrlimit(RLIMIT_FSIZE, &bytes);
        std::signal(SIGXFSZ, SIG_IGN);
    }
    if (limits.user != 0 &&
        (setgid(static_cast<gid_t>(limits.user)) != 0 || setuid(static_cast<uid_t>(limits.user)) != 0))
        _exit(126);
}

bool isKept(const fs::path& file) { return file.parent_path().filename() == "Recovery"; }

} // namespace

bool keptCardsAreWhole(const fs::path& folder) {
    const auto files = fs::recursive_directory_iterator{folder};
    return std::all_of(begin(files), end(files), [](const fs::directory_entry& entry) {
        return !isKept(entry.path()) || entry.path().extension() != ".recovery" ||
               quillon::opened(bytesOf(entry.path()));
    });
}

Files filesBelow(const fs::path& folder) {
    Files files;
    for (const auto& entry : fs::recursive_directory_iterator{folder})
        if (entry.is_regular_file() && !isKept(entry.path()))
            files[entry.path().lexically_relative(folder).string()] = bytesOf(entry.path());
    return files;
}

void copyFolder(const fs::path& folder, const fs::path& copy) {
    fs::remove_all(copy);
    fs::copy(folder, copy, fs::copy_options::recursive);
}

TemporaryFolder::TemporaryFolder() {
    const fs::path inMemory = "/dev/shm";
    const fs::path below = ::access(inMemory.c_str(), W_OK) == 0 ? inMemory : fs::temp_directory_path();
    std::string pattern = (below / "quillon-faults-XXXXXX").string();
    if (mkdtemp(pattern.data()) == nullptr) throw std::runtime_error("no temporary folder");
    path_ = pattern;
}

TemporaryFolder::~TemporaryFolder() {
    std::error_code error;
    fs::remove_all(path_, error);
}

ConsoleProcess::ConsoleProcess(const fs::path& folder, const std::string& script, Fault fault,
                               Limits limits) {
    const std::string scriptPath = aside_ / "script.txt";
    std::ofstream{scriptPath, std::ios::binary} << script;
    const std::string layer = std::string{"LD_PRELOAD="} + FAULT_LAYER;
    const std::string log = "QUILLON_FAULT_LOG=" + (aside_ / "calls.txt").string();
    const std::string at = "QUILLON_FAULT_AT=" + std::to_string(fault.at);
    const std::string kind = std::string{"QUILLON_FAULT_KIND="} + nameOf(fault.kind);
    const std::array<const char*, 5> environment{layer.c_str(), log.c_str(), at.c_str(), kind.c_str(),
                                                 nullptr};
    const std::array<const char*, 2> arguments{QUILLON_CONSOLE, nullptr};
    const int input =
        ::open(limits.input.empty() ? scriptPath.c_str() : limits.input.c_str(), O_RDONLY | O_CLOEXEC);
    std::array<int, 2> ends{};
    if (input < 0 || pipe2(ends.data(), O_CLOEXEC) != 0) throw std::runtime_error("no pipe to the console");

    process_ = fork();
    if (process_ == 0) {
        dup2(input, STDIN_FILENO);
        dup2(ends[1], STDOUT_FILENO);
        if (chdir(folder.c_str()) != 0) _exit(127);
        limit(limits);
        execve(QUILLON_CONSOLE, const_cast<char**>(arguments.data()), const_cast<char**>(environment.data()));
        _exit(127);
    }
    ::close(input);
    ::close(ends[1]);
    transcript_ = ends[0];
}

ConsoleProcess::~ConsoleProcess() {
    if (transcript_ >= 0) wait();
}

Outcome ConsoleProcess::wait() {
    Outcome outcome;
    std::array<char, 1 << 16> piece;
    for (;;) {
        const auto count = ::read(transcript_, piece.data(), piece.size());
        if (count <= 0) break;
        outcome.transcript.append(piece.data(), static_cast<std::size_t>(count));
    }
    ::close(transcript_);
    transcript_ = -1;
    int status = 0;
    waitpid(process_, &status, 0);
    outcome.killed = WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL;
    if (WIFEXITED(status)) outcome.status = WEXITSTATUS(status);
    outcome.calls = linesOf(bytesOf(aside_ / "calls.txt"));
    return outcome;
}

Outcome runConsole(const fs::path& folder, const std::string& script, Fault fault, Limits limits) {
    return ConsoleProcess{folder, script, fault, limits}.wait();
}

} // namespace faults
