#include "core/files.h"

#include "core/code_page.h"
#include "core/disk.h"
#include "core/failure.h"

#include <algorithm>
#include <array>
#include <new>
#include <utility>

namespace quillon {

namespace fs = std::filesystem;

namespace {

constexpr TextView programFolder = "A Quillon PRO";

struct FolderName {
    Folder folder;
    TextView name;
};

constexpr std::array folderNames{
    FolderName{Folder::sourceTables, "TrackMaster ExE Files"},
    FolderName{Folder::raceCards, "Race Cards"},
    FolderName{Folder::archives, "Archives"},
    FolderName{Folder::results, "Results"},
    FolderName{Folder::selections, "Selections"},
    FolderName{Folder::selections2, "Selections2"},
    FolderName{Folder::programs, "Programs"},
    FolderName{Folder::entries, "Entries"},
    FolderName{Folder::drivers, "Drivers"},
    FolderName{Folder::recovery, "Recovery"},
    FolderName{Folder::imported, "Imported"},
};

TextView nameOf(Folder folder) {
    for (const FolderName& row : folderNames)
        if (row.folder == folder) return row.name;
    return "";
}

// Names are Windows-1252 bytes inside; on disk every system here takes Unicode.
fs::path pathOf(TextView name) {
    const std::string utf8 = toUtf8(name);
    return fs::path{std::u8string{utf8.begin(), utf8.end()}};
}

Text nameOn(const fs::path& path) { return fromUtf8(disk::utf8Name(path)); }

bool hasControls(TextView name) {
    return std::any_of(name.begin(), name.end(), [](char c) { return c >= 0 && c < ' '; });
}

void checkFileName(TextView name) {
    const bool leadsElsewhere = name.find_first_of("/\\:") != TextView::npos || name == "." || name == "..";
    constexpr std::size_t longestName = 200;
    if (name.empty() || hasControls(name) || leadsElsewhere || name.size() > longestName ||
        disk::isReservedName(name))
        fail("\"" + Text{name.substr(0, 60)} + "\" is no file name");
}

// The entry of a folder that has this name in any case.
std::optional<fs::path> foundIgnoringCase(const fs::path& folder, TextView name) {
    std::error_code error;
    for (fs::directory_iterator at{folder, error}, end; !error && at != end; at.increment(error)) {
        if (sameIgnoringCase(nameOn(at->path()), name)) return at->path();
    }
    return std::nullopt;
}

fs::path childIgnoringCase(const fs::path& folder, TextView name) {
    const fs::path plain = disk::reachable(folder / pathOf(name));
    if (disk::isThere(plain)) return disk::asStored(plain);
    const auto found = foundIgnoringCase(folder.empty() ? fs::path{"."} : folder, name);
    return found ? disk::reachable(*found) : plain;
}

// A path that leads where the user wants it, in the case that he gave it.
fs::path givenPath(TextView name) {
    fs::path path = pathOf(name);
    path.make_preferred();
    if (path.filename().empty() || hasControls(name) || disk::isReservedName(nameOn(path)))
        fail("\"" + Text{name.substr(0, 60)} + "\" is no path of a file");
    return disk::reachable(path);
}

bool endsWithoutLineEnd(const fs::path& path) {
    std::ifstream file{path, std::ios::binary | std::ios::ate};
    if (!file || file.tellg() <= 0) return false;
    file.seekg(-1, std::ios::end);
    return file.get() != '\n';
}

// True where nothing stands after the first `size` bytes of the file but a part of the record, or all of it.
bool isStartOf(TextView record, const fs::path& path, std::uintmax_t size) {
    std::ifstream file{path, std::ios::binary};
    file.seekg(static_cast<std::streamoff>(size));
    Text behind(record.size() + 1, '\0');
    file.read(behind.data(), static_cast<std::streamsize>(behind.size()));
    return record.starts_with(TextView{behind}.substr(0, static_cast<std::size_t>(file.gcount())));
}

// A record that could not be written whole, or not flushed, leaves nothing of itself: it can be tried again.
void takeBack(const fs::path& path, bool isNew, std::uintmax_t size) {
    std::error_code error;
    if (isNew)
        fs::remove(path, error);
    else
        fs::resize_file(path, size, error);
}

} // namespace

Text shownPath(const FilePlace& place) {
    if (place.folder == Folder::working || place.folder == Folder::given) return place.name;
    Text path = "C:\\";
    path += programFolder;
    path += '\\';
    if (place.folder != Folder::program) {
        path += nameOf(place.folder);
        path += '\\';
    }
    return path += place.name;
}

fs::path folderOnDisk(Folder folder) {
    if (folder == Folder::working || folder == Folder::given) return {};
    const fs::path root = childIgnoringCase(disk::root(), programFolder);
    return folder == Folder::program ? root : childIgnoringCase(root, nameOf(folder));
}

fs::path pathOnDisk(const FilePlace& place) {
    if (place.folder == Folder::given) return givenPath(place.name);
    checkFileName(place.name);
    return childIgnoringCase(folderOnDisk(place.folder), place.name);
}

std::vector<Text> filesIn(Folder folder, TextView extension) {
    const fs::path path = folderOnDisk(folder);
    std::vector<Text> names;
    std::error_code error;
    for (fs::directory_iterator at{path.empty() ? fs::path{"."} : path, error}, end; !error && at != end;
         at.increment(error)) {
        Text name = nameOn(at->path());
        const bool wanted = name.size() > extension.size() &&
                            sameIgnoringCase(rightOf(name, static_cast<int>(extension.size())), extension);
        if (wanted && at->is_regular_file(error)) names.push_back(std::move(name));
    }
    std::sort(names.begin(), names.end());
    return names;
}

namespace {

// False for a file that is too large to be one of ours, or for the memory that there is.
bool hasRoomFor(std::streamoff size, Text& content) {
    constexpr std::streamoff largest = std::streamoff{1} << 30;
    if (size > largest) return false;
    try {
        content.resize(static_cast<std::size_t>(size));
        return true;
    } catch (const std::bad_alloc&) {
        return false;
    }
}

} // namespace

bool fileExists(const FilePlace& place) { return disk::isFile(pathOnDisk(place)); }

std::optional<FileStamp> fileStamp(const FilePlace& place) {
    const fs::path path = pathOnDisk(place);
    std::error_code error;
    if (!disk::isFile(path)) return std::nullopt;
    FileStamp stamp{fs::absolute(path, error), fs::file_size(path, error), {}};
    if (!error) stamp.written = fs::last_write_time(path, error);
    return error ? std::nullopt : std::optional{stamp};
}

std::optional<Text> fileContent(const FilePlace& place) {
    const fs::path path = pathOnDisk(place);
    if (!disk::isFile(path)) return std::nullopt;
    std::ifstream file{path, std::ios::binary | std::ios::ate};
    if (!file) return std::nullopt;
    const auto size = file.tellg();
    if (size < 0) return std::nullopt;
    Text content;
    if (!hasRoomFor(size, content)) return std::nullopt;
    file.seekg(0);
    file.read(content.data(), size);
    content.resize(static_cast<std::size_t>(file.gcount()));
    return content;
}

Text readFile(const FilePlace& place) {
    if (auto content = fileContent(place)) return std::move(*content);
    fail(shownPath(place) + " can't be read");
}

FileWatch fileWatch;
WriteFailureWatch writeFailureWatch;

namespace {

[[noreturn]] void failWriting(const FilePlace& place, std::error_code cause, TextView what) {
    if (writeFailureWatch) writeFailureWatch({place, cause});
    fail(what);
}

// Why a file was not written, asked at once. Some systems call a folder of that name read-only.
std::error_code causeAt(const fs::path& target) {
    const std::error_code cause = disk::lastError();
    std::error_code unknown;
    return fs::is_directory(target, unknown) ? make_error_code(std::errc::is_a_directory) : cause;
}

} // namespace

FilePieces::FilePieces(const FilePlace& place) {
    const fs::path path = pathOnDisk(place);
    if (disk::isFile(path)) file_.open(path, std::ios::binary | std::ios::ate);
    const auto size = file_.is_open() ? static_cast<std::streamoff>(file_.tellg()) : -1;
    if (size < 0) fail(shownPath(place) + " can't be read");
    size_ = static_cast<std::uint64_t>(size);
}

TextView FilePieces::read(std::uint64_t start, std::size_t count) {
    const std::uint64_t left = start < size_ ? size_ - start : 0;
    count = static_cast<std::size_t>(std::min<std::uint64_t>(count, left));
    if (piece_.size() < count) piece_.resize(count);
    file_.clear();
    file_.seekg(static_cast<std::streamoff>(start));
    file_.read(piece_.data(), static_cast<std::streamsize>(count));
    return {piece_.data(), static_cast<std::size_t>(file_.gcount())};
}

void makeFolder(Folder folder) {
    const fs::path path = folderOnDisk(folder);
    if (path.empty()) return;
    std::error_code error;
    fs::create_directories(path, error);
    const std::error_code cause = error;
    if (!fs::is_directory(path, error))
        failWriting({folder, ""}, cause, "the folder " + shownPath({folder, ""}) + " can't be made");
}

// Programs that replace the same file at the same time write each to a temporary file of its own.
PreparedFile::PreparedFile(const FilePlace& place) : place_(place), target_(pathOnDisk(place)) {
    constexpr int mostPrograms = 9;
    if (fileWatch) fileWatch(place);
    if (disk::isWriteProtected(target_))
        failWriting(place, make_error_code(std::errc::permission_denied),
                    shownPath(place) + " is write-protected");
    for (int program = 1; program <= mostPrograms; ++program) {
        ending_ = program == 1 ? Text{} : std::to_string(program);
        temporary_ = target_;
        temporary_ += ".quillon-new" + ending_;
        file_ = std::make_unique<DiskFile>(temporary_, DiskFile::Mode::rewrite);
        if (!file_->isTaken()) break;
    }
    if (file_->isOpen()) return;
    const auto cause = file_->isTaken() ? make_error_code(std::errc::text_file_busy) : causeAt(target_);
    failWriting(place, cause, shownPath(place) + " can't be written");
}

void PreparedFile::failToWrite() {
    failWriting(place_, disk::lastError(), nameOn(target_) + " can't be written");
}

PreparedFile::PreparedFile(const FilePlace& place, TextView content) : PreparedFile(place) {
    write(content);
    finish();
}

PreparedFile::~PreparedFile() {
    if (!temporary_.empty()) disk::removeFile(temporary_); // while it is still ours
}

void PreparedFile::write(TextView piece) {
    constexpr std::size_t mostGathered = 1U << 18;
    if (gathered_.size() + piece.size() > mostGathered) writeGathered();
    if (piece.size() < mostGathered)
        gathered_ += piece;
    else if (!file_->write(piece))
        failToWrite();
}

void PreparedFile::writeGathered() {
    if (!file_->write(gathered_)) failToWrite();
    gathered_.clear();
}

void PreparedFile::finish() {
    if (finished_) return;
    writeGathered();
    if (!file_->flush()) failToWrite();
    finished_ = true;
}

void PreparedFile::putInPlace() {
    finish();
    if (!disk::replaceFile(temporary_, target_))
        failWriting(place_, causeAt(target_), nameOn(target_) + " can't be replaced");
    temporary_.clear();
    file_->close(); // or it could not be taken back: some systems replace no open file
}

namespace {

/// The content of a file that is about to be replaced or removed, under a second name until it is let go of.
class OldFile {
public:
    OldFile(fs::path target, const Text& ending) : target_{std::move(target)}, kept_{target_} {
        kept_ += ".quillon-old" + ending;
        disk::removeFile(kept_);
        wasThere_ = disk::isThere(target_);
    }

    bool keep() const { return !wasThere_ || disk::keepAs(target_, kept_); }
    void letGo() const { disk::removeFile(kept_); }
    void putBack() const {
        if (wasThere_)
            disk::replaceFile(kept_, target_);
        else
            disk::removeFile(target_);
    }

private:
    fs::path target_;
    fs::path kept_;
    bool wasThere_ = false;
};

} // namespace

// The last step needs no old content: where it fails, it has changed nothing.
void putInPlaceTogether(std::span<PreparedFile* const> files, std::span<const FilePlace> gone) {
    const std::size_t steps = files.size() + gone.size();
    std::vector<OldFile> old;
    for (std::size_t at = 0; at + 1 < steps; ++at) {
        const bool isReplaced = at < files.size();
        const FilePlace& place = isReplaced ? files[at]->place_ : gone[at - files.size()];
        const fs::path target = isReplaced ? files[at]->target_ : pathOnDisk(place);
        old.emplace_back(target, isReplaced ? files[at]->ending_ : Text{});
        if (old.back().keep()) continue;
        const std::error_code cause = disk::lastError();
        for (const OldFile& file : old) file.letGo();
        failWriting(place, cause, nameOn(target) + " can't be kept while it is replaced");
    }
    std::size_t done = 0;
    const auto step = [&] {
        if (done < files.size())
            files[done]->putInPlace();
        else
            removeFile(gone[done - files.size()]);
    };
    while (done < steps && attempt(step)) ++done;
    const bool allDone = done == steps;
    for (std::size_t at = old.size(); at-- > 0;) {
        if (!allDone && at < done)
            old[at].putBack();
        else
            old[at].letGo();
    }
    if (!allDone) fail(Text{"all files are left as they were"});
}

void putInPlaceTogether(PreparedFile& first, PreparedFile& second) {
    const std::array both{&first, &second};
    putInPlaceTogether(both, {});
}

void removeFile(const FilePlace& place) {
    const fs::path path = pathOnDisk(place);
    disk::removeFile(path);
    const std::error_code cause = causeAt(path);
    if (disk::isThere(path)) failWriting(place, cause, shownPath(place) + " can't be removed");
}

ClaimedFile::ClaimedFile(fs::path path, std::unique_ptr<DiskFile> file)
    : path_(std::move(path)), file_(std::move(file)) {}

std::unique_ptr<ClaimedFile> ClaimedFile::claim(const FilePlace& place) {
    makeFolder(place.folder);
    std::error_code error;
    fs::path path = fs::absolute(pathOnDisk(place), error);
    auto file = std::make_unique<DiskFile>(path, DiskFile::Mode::rewrite);
    if (file->isTaken()) return nullptr;
    if (!file->isOpen()) fail(shownPath(place) + " can't be made");
    return std::unique_ptr<ClaimedFile>{new ClaimedFile{std::move(path), std::move(file)}};
}

ClaimedFile::~ClaimedFile() { disk::removeFile(path_); } // while it is still ours

void writeFile(const FilePlace& place, TextView content) {
    makeFolder(place.folder);
    PreparedFile{place, content}.putInPlace();
}

void appendToFile(const FilePlace& place, TextView content) {
    makeFolder(place.folder);
    const fs::path path = pathOnDisk(place);
    if (fileWatch) fileWatch(place);
    std::error_code error;
    const bool isNew = !disk::isThere(path);
    const std::uintmax_t size = isNew ? 0 : fs::file_size(path, error);
    Text record;
    if (!content.empty() && endsWithoutLineEnd(path)) record += crLf;
    record += content;
    DiskFile file{path, DiskFile::Mode::append};
    if (!file.isOpen()) failWriting(place, causeAt(path), shownPath(place) + " can't be written");
    if (file.write(record) && file.flush() && file.close()) return;
    const std::error_code cause = disk::lastError();
    file.close();
    if (!error && isStartOf(record, path, size)) takeBack(path, isNew, size);
    failWriting(place, cause, shownPath(place) + " can't be written");
}

std::optional<TextView> LineReader::next() {
    if (rest_.empty()) return std::nullopt;
    const auto end = rest_.find('\n');
    TextView line = rest_.substr(0, end);
    rest_ = end == TextView::npos ? TextView{} : rest_.substr(end + 1);
    if (line.ends_with('\r')) line.remove_suffix(1);
    return line;
}

} // namespace quillon
