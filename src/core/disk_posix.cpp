#include "core/disk.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace quillon {

namespace fs = std::filesystem;

namespace {

// Another program may have renamed the file between our opening and our locking it.
bool isStillAt(const fs::path& path, int handle) {
    struct stat opened {};
    struct stat there {};
    return ::fstat(handle, &opened) == 0 && ::stat(path.c_str(), &there) == 0 &&
           opened.st_dev == there.st_dev && opened.st_ino == there.st_ino;
}

// The lock ends with its process, so that a file left by a crash is free. A disk without locks has none.
bool isLockedElsewhere(int handle) { return ::flock(handle, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK; }

} // namespace

DiskFile::DiskFile(const fs::path& path, Mode mode)
    : handle_(::open(path.c_str(), O_WRONLY | O_CREAT | O_CLOEXEC | (mode == Mode::append ? O_APPEND : 0),
                     0666)) {
    if (mode == Mode::append || !isOpen()) return;
    const auto handle = static_cast<int>(handle_);
    taken_ = isLockedElsewhere(handle) || !isStillAt(path, handle);
    if (taken_ || ::ftruncate(handle, 0) != 0) close();
}

DiskFile::~DiskFile() { close(); }

bool DiskFile::write(TextView content) {
    while (!content.empty()) {
        const auto written = ::write(static_cast<int>(handle_), content.data(), content.size());
        if (written < 0 && errno == EINTR) continue;
        if (written <= 0) return false;
        content.remove_prefix(static_cast<std::size_t>(written));
    }
    return true;
}

bool DiskFile::flush() { return ::fsync(static_cast<int>(handle_)) == 0; }

bool DiskFile::close() {
    if (!isOpen()) return true;
    return ::close(static_cast<int>(std::exchange(handle_, noHandle))) == 0;
}

namespace disk {

std::error_code lastError() { return {errno, std::generic_category()}; }

fs::path root() { return {}; }

bool isReservedName(TextView) { return false; }

fs::path reachable(const fs::path& path) { return path; }

fs::path asStored(const fs::path& path) { return path; }

std::string utf8Name(const fs::path& path) { return path.filename().native(); }

bool isThere(const fs::path& path) {
    std::error_code error;
    return fs::exists(path, error);
}

bool isFile(const fs::path& path) {
    std::error_code error;
    return fs::is_regular_file(path, error);
}

// A folder that can be written in decides, as everywhere on these systems.
bool isWriteProtected(const fs::path&) { return false; }

bool removeFile(const fs::path& path) {
    std::error_code error;
    return fs::remove(path, error);
}

bool replaceFile(const fs::path& replacement, const fs::path& target) {
    std::error_code error;
    fs::rename(replacement, target, error);
    return !error;
}

bool keepAs(const fs::path& file, const fs::path& secondName) {
    std::error_code error;
    fs::create_hard_link(file, secondName, error);
    if (error) fs::copy_file(file, secondName, error);
    return !error;
}

} // namespace disk
} // namespace quillon
