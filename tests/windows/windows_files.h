// Files by the system's own calls: tests see what is on the disk, not what the program makes of it.
#pragma once

#ifndef NOMINMAX
#define NOMINMAX
#endif
#define WIN32_LEAN_AND_MEAN
#include <windows.h>

#include <string>
#include <string_view>

namespace windows {

/// Makes a folder, with those above it, and works in it; takes it away with all that is in it. A path may be
/// as long as it likes.
class WorkingFolder {
public:
    explicit WorkingFolder(const std::wstring& path);
    ~WorkingFolder();
    WorkingFolder(const WorkingFolder&) = delete;
    WorkingFolder& operator=(const WorkingFolder&) = delete;

private:
    std::wstring path_;
};

void put(const std::wstring& path, std::string_view content); ///< fails the test where it can't
std::string content(const std::wstring& path);                ///< fails the test where there is no such file

DWORD attributes(const std::wstring& path);
void setAttributes(const std::wstring& path, DWORD attributes);

/// A file that another program has opened.
class OpenElsewhere {
public:
    /// `shared` tells what else may be done with it meanwhile: FILE_SHARE_READ ...
    OpenElsewhere(const std::wstring& path, DWORD shared);
    ~OpenElsewhere();
    OpenElsewhere(const OpenElsewhere&) = delete;
    OpenElsewhere& operator=(const OpenElsewhere&) = delete;

private:
    HANDLE handle_;
};

} // namespace windows
