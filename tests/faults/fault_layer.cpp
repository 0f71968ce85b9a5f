// A layer between a program and its files, preloaded into the program, that fails or kills at a chosen point.
//
// Each call that changes a file or a folder is a point; points are counted from 1 and logged, a line each.
//
//     QUILLON_FAULT_LOG    the file of the log
//     QUILLON_FAULT_AT     the point, 0 for none
//     QUILLON_FAULT_KIND   fail: this one call fails; a write brings half of its bytes to the disk first
//                          stay: this call and all after it fail, as on a disk that went read-only
//                          kill: the process dies in front of the call
//                          torn: the process dies after half of a write
//
// Nothing is flushed to the disk for real: a process may die here, the machine does not.
#include <array>
#include <cerrno>
#include <csignal>
#include <cstdarg>
#include <cstdlib>
#include <cstring>
#include <string_view>

#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace {

struct Settings {
    long at = 0;
    std::string_view kind{};
    int log = -1;
};

long numberOf(const char* text) { return text == nullptr ? 0 : std::strtol(text, nullptr, 10); }

const Settings& settings() {
    static const Settings once = [] {
        Settings read;
        read.at = numberOf(std::getenv("QUILLON_FAULT_AT"));
        const char* kind = std::getenv("QUILLON_FAULT_KIND");
        if (kind != nullptr) read.kind = kind;
        if (const char* log = std::getenv("QUILLON_FAULT_LOG"))
            read.log = static_cast<int>(
                syscall(SYS_openat, AT_FDCWD, log, O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0666));
        return read;
    }();
    return once;
}

template <class Call>
Call* next(const char* name) {
    return reinterpret_cast<Call*>(dlsym(RTLD_NEXT, name));
}

void log(std::string_view call, std::string_view what) {
    char line[512];
    std::size_t length = 0;
    const auto add = [&](std::string_view part) {
        const std::size_t count = part.copy(line + length, sizeof line - 1 - length);
        length += count;
    };
    add(call);
    add(" ");
    add(what);
    line[length++] = '\n';
    if (settings().log >= 0) syscall(SYS_write, settings().log, line, length);
}

[[noreturn]] void die() {
    kill(getpid(), SIGKILL);
    for (;;) pause();
}

long met = 0;

/// Counts a point. True when the call is to fail.
bool fails(const char* call, std::string_view what) {
    ++met;
    log(call, what);
    const Settings& set = settings();
    if (set.at == 0 || met < set.at) return false;
    if (set.kind == "stay") return true;
    if (met > set.at) return false;
    if (set.kind == "kill") die();
    return set.kind == "fail";
}

bool tearsHere() { return settings().kind == "torn" && met == settings().at; }

// Files that the program has open to write in.
constexpr std::size_t mostFiles = 1024;
enum class State : unsigned char { none, whole, broken };
std::array<State, mostFiles> files{};

State& stateOf(int file) {
    static State outside = State::none;
    return file >= 0 && static_cast<std::size_t>(file) < mostFiles ? files[static_cast<std::size_t>(file)]
                                                                   : outside;
}

int failed(int error) {
    errno = error;
    return -1;
}

int openFile(const char* path, int flags, mode_t mode) {
    using Open = int(const char*, int, ...);
    static Open* const real = next<Open>("open");
    const bool writes = (flags & O_ACCMODE) != O_RDONLY;
    if (writes && fails("open", path)) return failed(EACCES);
    const int file = real(path, flags, mode);
    if (writes && file >= 0) stateOf(file) = State::whole;
    return file;
}

mode_t modeIn(int flags, va_list arguments) {
    return (flags & O_CREAT) != 0 ? static_cast<mode_t>(va_arg(arguments, int)) : 0;
}

} // namespace

extern "C" {

int open(const char* path, int flags, ...) {
    va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = modeIn(flags, arguments);
    va_end(arguments);
    return openFile(path, flags, mode);
}

int open64(const char* path, int flags, ...) {
    va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = modeIn(flags, arguments);
    va_end(arguments);
    return openFile(path, flags, mode);
}

ssize_t write(int file, const void* bytes, size_t count) {
    static auto* const real = next<ssize_t(int, const void*, size_t)>("write");
    if (stateOf(file) == State::none) return real(file, bytes, count);
    if (stateOf(file) == State::broken) return failed(ENOSPC);
    const bool failing = fails("write", std::string_view{});
    if (!failing && !tearsHere()) return real(file, bytes, count);
    const ssize_t half = real(file, bytes, count / 2);
    if (!failing) die();
    stateOf(file) = State::broken;
    return half > 0 ? half : failed(ENOSPC);
}

int fsync(int file) {
    return stateOf(file) != State::none && fails("fsync", std::string_view{}) ? failed(EIO) : 0;
}

int close(int file) {
    static auto* const real = next<int(int)>("close");
    const bool failing = stateOf(file) != State::none && fails("close", std::string_view{});
    stateOf(file) = State::none;
    const int result = real(file);
    return failing ? failed(EIO) : result;
}

int rename(const char* from, const char* to) noexcept {
    static auto* const real = next<int(const char*, const char*)>("rename");
    return fails("rename", from) ? failed(EACCES) : real(from, to);
}

int link(const char* from, const char* to) noexcept {
    static auto* const real = next<int(const char*, const char*)>("link");
    return fails("link", from) ? failed(EPERM) : real(from, to);
}

int mkdir(const char* path, mode_t mode) noexcept {
    static auto* const real = next<int(const char*, mode_t)>("mkdir");
    return fails("mkdir", path) ? failed(ENOSPC) : real(path, mode);
}

int truncate(const char* path, off_t length) noexcept {
    static auto* const real = next<int(const char*, off_t)>("truncate");
    return fails("truncate", path) ? failed(EIO) : real(path, length);
}

// What is taken away can always be taken away, but on a disk that went read-only.
int remove(const char* path) noexcept {
    static auto* const real = next<int(const char*)>("remove");
    const bool failing = fails("remove", path);
    return failing && settings().kind == "stay" ? failed(EROFS) : real(path);
}

} // extern "C"
