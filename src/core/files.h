// Files and folders. All bytes that come in or go out pass through here.
//
// A file is named by its folder and its bare name, looked up ignoring case. Fixed folders lie under
// "C:\A Quillon PRO\" on Windows and under "A Quillon PRO/" in the working folder elsewhere; the working
// folder is the current folder. Names come from tables and from the user: a name that is empty, that leads
// out of its folder, or that holds control characters is no file name and fails.
#pragma once

#include "core/text.h"

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <system_error>
#include <vector>

namespace quillon {

enum class Folder {
    working,
    program, ///< "C:\A Quillon PRO\" itself
    sourceTables,
    raceCards,
    archives,
    results,
    selections,
    selections2,
    programs,
    entries,
    drivers,
    recovery,
    given,    ///< none of ours: the name is a path, as the user gave it
    imported, ///< tables of the vendor's that others have taken the place of
};

struct FilePlace {
    Folder folder = Folder::working;
    Text name;
};

/// The path as users read it on every system: "C:\A Quillon PRO\Selections\M1_20260314.pms", or the bare name
/// of a file in the working folder.
Text shownPath(const FilePlace& place);

/// A folder on this system's disk.
std::filesystem::path folderOnDisk(Folder folder);

/// The file on this system's disk: the one there is under this name in any case, or else the name as given.
/// Fails on a name that is no file name.
std::filesystem::path pathOnDisk(const FilePlace& place);

/// The names of the folder's files that end in `extension` (".pmd"), in any case, sorted. A missing folder
/// has none.
std::vector<Text> filesIn(Folder folder, TextView extension);

/// True where the file is there, whether or not it can be read.
bool fileExists(const FilePlace& place);

/// What tells a file from itself at another time: another program may have written it meanwhile.
struct FileStamp {
    std::filesystem::path path; ///< whole, since the working folder may change
    std::uintmax_t size = 0;
    std::filesystem::file_time_type written{};
    bool operator==(const FileStamp&) const = default;
};

/// Nothing where the file isn't there.
std::optional<FileStamp> fileStamp(const FilePlace& place);

/// The whole file, or nothing when it can't be opened or read, or is too large for memory or for one of ours
/// (a gigabyte).
std::optional<Text> fileContent(const FilePlace& place);

/// The whole file; fails when it can't be opened or read.
Text readFile(const FilePlace& place);

/// A file read piece by piece: for one that may be too long to be held in memory.
class FilePieces {
public:
    /// Opens the file. Fails when it can't be.
    explicit FilePieces(const FilePlace& place);

    std::uint64_t size() const { return size_; } ///< bytes, when it was opened

    /// The bytes from `start` on, as many as there are up to `count`. They stand until the next call.
    TextView read(std::uint64_t start, std::size_t count);

private:
    std::ifstream file_;
    std::uint64_t size_ = 0;
    Text piece_;
};

/// Creates the folder where it is missing. Fails when it can't be.
void makeFolder(Folder folder);

/// Replaces the file, or makes it: written whole to a temporary file beside it, flushed to disk, and renamed
/// over the old one, so that a crash or a full disk leaves the old file or the new one. A missing folder is
/// created. Fails with the old file untouched.
void writeFile(const FilePlace& place, TextView content);

class DiskFile;

/// A file written beside its place, but not yet put there: for files that must be replaced together, and for
/// those too long to be held in memory. The folder must be there.
class PreparedFile {
public:
    /// Writes the whole content and flushes it. Fails when it can't be written.
    PreparedFile(const FilePlace& place, TextView content);
    /// Begins a file that is written piece by piece. Fails when it can't be made.
    explicit PreparedFile(const FilePlace& place);
    ~PreparedFile(); ///< takes the temporary file away if it was not put in place
    PreparedFile(const PreparedFile&) = delete;
    PreparedFile& operator=(const PreparedFile&) = delete;

    /// Adds a piece; small ones are gathered. Fails when it can't be written.
    void write(TextView piece);

    /// Flushes what was written and renames the file over the old one. Fails when it can't be.
    void putInPlace();

private:
    friend void putInPlaceTogether(std::span<PreparedFile* const> files, std::span<const FilePlace> gone);

    void writeGathered();
    void finish(); ///< everything on the disk

    [[noreturn]] void failToWrite();

    FilePlace place_;
    std::filesystem::path target_;
    std::filesystem::path temporary_; ///< none once it is in place
    Text ending_;                     ///< of its name, where other programs replace the same file
    std::unique_ptr<DiskFile> file_;  ///< open until it is in place: no other program takes it
    bool finished_ = false;
    Text gathered_;
};

/// Puts all in place in their order and then takes away those that are to be gone, or does nothing of it: when
/// one can't be replaced or removed, those before it get their old content back. Fails with all old files as
/// they were. A crash on the way leaves each file whole, the first ones new and the others old.
void putInPlaceTogether(std::span<PreparedFile* const> files, std::span<const FilePlace> gone);
void putInPlaceTogether(PreparedFile& first, PreparedFile& second);

/// Adds to the end of the file in one write and flushes it; the file and its folder are created where
/// missing. A last line without a line end gets one first, so that nothing merges with it; adding nothing to
/// a file that is there leaves it as it is. Fails when it can't be written, with nothing of it in the file.
void appendToFile(const FilePlace& place, TextView content);

/// Takes the file away, if it is there. Fails when it can't be.
void removeFile(const FilePlace& place);

/// An empty file that tells other programs that this one lives: it is there until it is let go of, and is
/// nobody's any more when the program ends in whatever way.
class ClaimedFile {
public:
    /// Nothing where another program that lives has it. Fails when it can't be made.
    static std::unique_ptr<ClaimedFile> claim(const FilePlace& place);
    ~ClaimedFile();
    ClaimedFile(const ClaimedFile&) = delete;
    ClaimedFile& operator=(const ClaimedFile&) = delete;

private:
    ClaimedFile(std::filesystem::path path, std::unique_ptr<DiskFile> file);

    std::filesystem::path path_; ///< whole, since the working folder may change
    std::unique_ptr<DiskFile> file_;
};

/// Told of every file that is about to be written, made or replaced, before anything happens to it; none when
/// nobody asks.
using FileWatch = std::function<void(const FilePlace& place)>;
extern FileWatch fileWatch;

/// A file, or a folder where the name is empty, that could not be written, made, replaced or removed.
struct WriteFailure {
    FilePlace place{};
    std::error_code cause{};
};

/// Told of every write that fails, once it has failed; none when nobody asks.
using WriteFailureWatch = std::function<void(const WriteFailure& failure)>;
extern WriteFailureWatch writeFailureWatch;

/// Lines of a text, whether they end in LF or CR LF. A last line without an end counts; an end of the text
/// after a line end does not start another line.
class LineReader {
public:
    explicit LineReader(TextView content) : rest_(content) {}

    /// The next line without its end, or nothing at the end of the text.
    std::optional<TextView> next();

private:
    TextView rest_;
};

inline constexpr TextView crLf = "\r\n";
/// Some reports hold lines with one extra carriage return.
inline constexpr TextView crCrLf = "\r\r\n";

} // namespace quillon
