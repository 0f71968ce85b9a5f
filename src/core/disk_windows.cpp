#include "core/disk.h"

#include <algorithm>
#include <array>
#include <utility>

#ifndef NOMINMAX
#define NOMINMAX
#endif
#define WIN32_LEAN_AND_MEAN
#include <windows.h>

namespace quillon {

namespace fs = std::filesystem;

namespace {

HANDLE handleOf(std::intptr_t value) { return reinterpret_cast<HANDLE>(value); }

// Tries again for half a second while `isBusy` tells that another program is in the way: virus scanners and
// viewers hold a file for a moment.
template <class Action, class Test>
bool patiently(Action&& action, Test&& isBusy) {
    constexpr int tries = 11;
    constexpr DWORD pauseInMilliseconds = 50;
    for (int tried = 1;; ++tried) {
        if (action()) return true;
        if (tried == tries || !isBusy(GetLastError())) return false;
        Sleep(pauseInMilliseconds);
    }
}

bool isShared(DWORD error) { return error == ERROR_SHARING_VIOLATION || error == ERROR_LOCK_VIOLATION; }

bool isOneOf(DWORD attributes, DWORD marks) {
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & marks) != 0;
}

HANDLE openToAppend(const fs::path& path) {
    HANDLE handle = INVALID_HANDLE_VALUE;
    if (disk::isWriteProtected(path)) return handle;
    patiently(
        [&] {
            handle = CreateFileW(path.c_str(), FILE_APPEND_DATA, FILE_SHARE_READ | FILE_SHARE_DELETE, nullptr,
                                 OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
            return handle != INVALID_HANDLE_VALUE;
        },
        isShared);
    return handle;
}

HANDLE openToRewrite(const fs::path& path) {
    return CreateFileW(path.c_str(), GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_DELETE, nullptr,
                       CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
}

} // namespace

DiskFile::DiskFile(const fs::path& path, Mode mode)
    : handle_(
          reinterpret_cast<std::intptr_t>(mode == Mode::append ? openToAppend(path) : openToRewrite(path))) {
    taken_ = !isOpen() && mode == Mode::rewrite && isShared(GetLastError());
}

DiskFile::~DiskFile() { close(); }

bool DiskFile::write(TextView content) {
    while (!content.empty()) {
        constexpr std::size_t most = std::size_t{1} << 30;
        DWORD written = 0;
        const auto part = static_cast<DWORD>(std::min(content.size(), most));
        if (!WriteFile(handleOf(handle_), content.data(), part, &written, nullptr) || written == 0)
            return false;
        content.remove_prefix(written);
    }
    return true;
}

bool DiskFile::flush() { return FlushFileBuffers(handleOf(handle_)) != 0; }

bool DiskFile::close() {
    if (!isOpen()) return true;
    return CloseHandle(handleOf(std::exchange(handle_, noHandle))) != 0;
}

namespace disk {

// The common code where there is one: not every library knows the system's.
std::error_code lastError() {
    switch (const DWORD error = GetLastError()) {
    case ERROR_SHARING_VIOLATION:
    case ERROR_LOCK_VIOLATION: return make_error_code(std::errc::text_file_busy);
    case ERROR_DISK_FULL:
    case ERROR_HANDLE_DISK_FULL: return make_error_code(std::errc::no_space_on_device);
    case ERROR_WRITE_PROTECT: return make_error_code(std::errc::read_only_file_system);
    case ERROR_ACCESS_DENIED: return make_error_code(std::errc::permission_denied);
    default: return {static_cast<int>(error), std::system_category()};
    }
}

fs::path root() { return "C:\\"; }

// "con", "COM1.txt" and "Lpt2 .x" are devices in every folder; blanks and points at the end of a name are
// dropped, so that it would be another file's.
bool isReservedName(TextView name) {
    constexpr std::array devices{"CON", "PRN", "AUX", "NUL", "CONIN$", "CONOUT$"};
    constexpr std::array numberedDevices{"COM", "LPT"};
    constexpr TextView deviceNumbers = "0123456789\xB9\xB2\xB3"; // the raised 1 to 3 count as well
    if (name.ends_with(' ') || name.ends_with('.')) return true;
    TextView stem = name.substr(0, name.find('.'));
    stem = stem.substr(0, stem.find_last_not_of(' ') + 1);
    const auto isStem = [&](TextView device) { return sameIgnoringCase(stem, device); };
    if (std::any_of(devices.begin(), devices.end(), isStem)) return true;
    if (stem.empty() || deviceNumbers.find(stem.back()) == TextView::npos) return false;
    stem.remove_suffix(1);
    return std::any_of(numberedDevices.begin(), numberedDevices.end(), isStem);
}

fs::path reachable(const fs::path& path) {
    constexpr std::size_t roomForEnding = 16;
    std::wstring full(GetFullPathNameW(path.c_str(), 0, nullptr, nullptr), L'\0');
    full.resize(GetFullPathNameW(path.c_str(), static_cast<DWORD>(full.size()), full.data(), nullptr));
    if (full.size() + roomForEnding < MAX_PATH || full.starts_with(L"\\\\?\\")) return path;
    if (full.starts_with(L"\\\\")) return L"\\\\?\\UNC" + full.substr(1);
    return L"\\\\?\\" + full;
}

fs::path asStored(const fs::path& path) {
    WIN32_FIND_DATAW found{};
    const HANDLE search = FindFirstFileW(path.c_str(), &found);
    if (search == INVALID_HANDLE_VALUE) return path;
    FindClose(search);
    return fs::path{path}.replace_filename(found.cFileName);
}

std::string utf8Name(const fs::path& path) {
    const std::wstring name = path.filename().native();
    const auto length = static_cast<int>(name.size());
    const int size = WideCharToMultiByte(CP_UTF8, 0, name.data(), length, nullptr, 0, nullptr, nullptr);
    std::string utf8(static_cast<std::size_t>(size), '\0');
    WideCharToMultiByte(CP_UTF8, 0, name.data(), length, utf8.data(), size, nullptr, nullptr);
    return utf8;
}

bool isThere(const fs::path& path) { return GetFileAttributesW(path.c_str()) != INVALID_FILE_ATTRIBUTES; }

bool isFile(const fs::path& path) {
    return isThere(path) && !isOneOf(GetFileAttributesW(path.c_str()), FILE_ATTRIBUTE_DIRECTORY);
}

bool isWriteProtected(const fs::path& path) {
    const DWORD attributes = GetFileAttributesW(path.c_str());
    return isOneOf(attributes, FILE_ATTRIBUTE_READONLY) && !isOneOf(attributes, FILE_ATTRIBUTE_DIRECTORY);
}

bool removeFile(const fs::path& path) { return DeleteFileW(path.c_str()) != 0; }

// The new file keeps the old one's mark of being hidden. Access is denied to a file that is open elsewhere,
// but to a folder for good.
bool replaceFile(const fs::path& replacement, const fs::path& target) {
    constexpr DWORD kept = FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM;
    if (isWriteProtected(target)) return false;
    const DWORD attributes = GetFileAttributesW(target.c_str());
    const bool done = patiently(
        [&] {
            return MoveFileExW(replacement.c_str(), target.c_str(),
                               MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != 0;
        },
        [&](DWORD error) { return isShared(error) || (error == ERROR_ACCESS_DENIED && isFile(target)); });
    if (done && isOneOf(attributes, kept))
        SetFileAttributesW(target.c_str(), (attributes & kept) | FILE_ATTRIBUTE_ARCHIVE);
    return done;
}

bool keepAs(const fs::path& file, const fs::path& secondName) {
    return CreateHardLinkW(secondName.c_str(), file.c_str(), nullptr) != 0 ||
           CopyFileW(file.c_str(), secondName.c_str(), TRUE) != 0;
}

} // namespace disk
} // namespace quillon
