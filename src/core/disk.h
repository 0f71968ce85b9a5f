// What files.cpp asks of the operating system; one source a system. Nothing else uses it.
#pragma once

#include "core/text.h"

#include <cstdint>
#include <filesystem>
#include <string>
#include <system_error>

namespace quillon {

/// A file opened for writing, so that what was written can be flushed to the disk. Each step tells whether it
/// was done. A file that is rewritten is this program's own as long as it is open.
class DiskFile {
public:
    enum class Mode { rewrite, append };

    DiskFile(const std::filesystem::path& path, Mode mode);
    ~DiskFile();
    DiskFile(const DiskFile&) = delete;
    DiskFile& operator=(const DiskFile&) = delete;

    bool isOpen() const { return handle_ != noHandle; }
    bool isTaken() const { return taken_; } ///< another program is rewriting it
    bool write(TextView content);
    bool flush();
    bool close();

private:
    static constexpr std::intptr_t noHandle = -1; // both systems' mark of a file that did not open

    std::intptr_t handle_ = noHandle;
    bool taken_ = false;
};

namespace disk {

/// Why the last step that was not done was not.
std::error_code lastError();

/// The folder that "A Quillon PRO" lies in.
std::filesystem::path root();

/// A name that the system keeps for a device, or takes for another name.
bool isReservedName(TextView name);

/// The path in a form that the system opens whatever its length, with room for an ending of our own.
std::filesystem::path reachable(const std::filesystem::path& path);

/// The path of a file that is there, with its name as it is stored: some systems find it in any case.
std::filesystem::path asStored(const std::filesystem::path& path);

/// The last name of a path in UTF-8. A name that is no Unicode has other characters in its place.
std::string utf8Name(const std::filesystem::path& path);

bool isThere(const std::filesystem::path& path);
bool isFile(const std::filesystem::path& path); ///< and no folder or device

/// A file that its user has marked not to be changed, where a rename would not heed the mark by itself or
/// only late.
bool isWriteProtected(const std::filesystem::path& path);

bool removeFile(const std::filesystem::path& path);

/// Renames a file over another, or to a name that is free. The old file stays where it can't be replaced.
bool replaceFile(const std::filesystem::path& replacement, const std::filesystem::path& target);

/// Gives a file a second name, by a link where the disk has links, else by a copy.
bool keepAs(const std::filesystem::path& file, const std::filesystem::path& secondName);

} // namespace disk
} // namespace quillon
