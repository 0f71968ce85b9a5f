#include "windows_files.h"

#include <gtest/gtest.h>

namespace windows {
namespace {

std::wstring longForm(const std::wstring& path) { return L"\\\\?\\" + path; }

void removeFilesOf(const std::wstring& folder) {
    WIN32_FIND_DATAW found{};
    const HANDLE search = FindFirstFileW((folder + L"\\*").c_str(), &found);
    if (search == INVALID_HANDLE_VALUE) return;
    do DeleteFileW((folder + L"\\" + found.cFileName).c_str());
    while (FindNextFileW(search, &found));
    FindClose(search);
}

} // namespace

WorkingFolder::WorkingFolder(const std::wstring& path) : path_(path) {
    for (std::size_t end = path.find(L'\\', 3);; end = path.find(L'\\', end + 1)) {
        CreateDirectoryW(longForm(path.substr(0, end)).c_str(), nullptr);
        if (end == std::wstring::npos) break;
    }
    EXPECT_TRUE(SetCurrentDirectoryW(path.c_str()));
}

WorkingFolder::~WorkingFolder() {
    SetCurrentDirectoryW(L"C:\\");
    removeFilesOf(longForm(path_));
    for (std::wstring path = path_; path.size() > 3; path.resize(path.rfind(L'\\')))
        RemoveDirectoryW(longForm(path).c_str());
}

void put(const std::wstring& path, std::string_view content) {
    const HANDLE file = CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
    DWORD written = 0;
    EXPECT_TRUE(WriteFile(file, content.data(), static_cast<DWORD>(content.size()), &written, nullptr));
    CloseHandle(file);
}

std::string content(const std::wstring& path) {
    const HANDLE file =
        CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
    EXPECT_NE(INVALID_HANDLE_VALUE, file);
    if (file == INVALID_HANDLE_VALUE) return "";
    std::string text(GetFileSize(file, nullptr), '\0');
    DWORD read = 0;
    ReadFile(file, text.data(), static_cast<DWORD>(text.size()), &read, nullptr);
    CloseHandle(file);
    EXPECT_EQ(text.size(), read);
    return text;
}

DWORD attributes(const std::wstring& path) { return GetFileAttributesW(path.c_str()); }

void setAttributes(const std::wstring& path, DWORD attributes) {
    EXPECT_TRUE(SetFileAttributesW(path.c_str(), attributes));
}

OpenElsewhere::OpenElsewhere(const std::wstring& path, DWORD shared)
    : handle_(CreateFileW(path.c_str(), GENERIC_READ, shared, nullptr, OPEN_EXISTING, 0, nullptr)) {
    EXPECT_NE(INVALID_HANDLE_VALUE, handle_);
}

OpenElsewhere::~OpenElsewhere() { CloseHandle(handle_); }

} // namespace windows
