#include "import/zip_reading.h"

#include "import/member_path.h"

#include <archive.h>
#include <archive_entry.h>

#include <algorithm>
#include <array>
#include <memory>
#include <utility>

namespace quillon {
namespace {

struct CloseArchive {
    void operator()(archive* opened) const { archive_read_free(opened); }
};
using OpenArchive = std::unique_ptr<archive, CloseArchive>;

constexpr TextView programMark = "MZ";
constexpr TextView memberMark = "PK\x03\x04";
constexpr TextView endMark = "PK\x05\x06"; // of an archive without members the beginning

// Why these bytes can't be read as an archive.
Text damageIn(TextView bytes, TextView name) {
    const Text file = pathInWords(name);
    if (bytes.find(memberMark) != TextView::npos) return file + " is damaged or cut short. Fetch it again.";
    if (bytes.starts_with(endMark)) return file + " is an empty archive.";
    if (bytes.starts_with(programMark))
        return file +
               " is a program without a zip archive in it, and Quillon runs no programs. Run it yourself "
               "and bring the folder that it writes.";
    return file + " is neither a zip archive nor a table of the vendor's.";
}

Text pathOf(archive_entry* member) {
    if (const char* path = archive_entry_pathname(member)) return path;
    if (const char* path = archive_entry_pathname_utf8(member)) return path;
    return {}; // in letters that this system doesn't know, so none of the vendor's names
}

bool isLink(archive_entry* member) {
    return archive_entry_filetype(member) == AE_IFLNK || archive_entry_symlink(member) != nullptr ||
           archive_entry_hardlink(member) != nullptr;
}

// Why a member spoils its whole archive; empty where it doesn't.
Text refusalOf(archive_entry* member, const Text& path, TextView name) {
    const Text where = pathInWords(path) + " in " + pathInWords(name);
    if (leadsOut(path)) return where + " has a path that leads out of the archive.";
    if (isLink(member)) return where + " is a link to another file.";
    if (archive_entry_is_encrypted(member) != 0)
        return where + " is encrypted. Unpack the archive with its password and bring the folder.";
    const auto kind = archive_entry_filetype(member);
    if (kind != AE_IFREG && kind != AE_IFDIR) return where + " is neither a file nor a folder.";
    return {};
}

class ZipReader {
public:
    ZipReader(TextView bytes, TextView name, Gathered& gathered, const ZipLimits& limits)
        : bytes_{bytes}, name_{name}, gathered_{gathered}, limits_{limits}, archive_{archive_read_new()} {}

    void gather() {
        // By the list at the end of the archive: the one that says what is in it, wherever the archive begins.
        const bool isOpen =
            archive_ && archive_read_support_format_zip_seekable(archive_.get()) == ARCHIVE_OK &&
            archive_read_open_memory(archive_.get(), bytes_.data(), bytes_.size()) == ARCHIVE_OK;
        if (!isOpen) return refuse(damageIn(bytes_, name_));
        archive_entry* member = nullptr;
        while (!gathered_.isRefused()) {
            const int state = archive_read_next_header(archive_.get(), &member);
            if (state == ARCHIVE_EOF) return;
            if (state != ARCHIVE_OK && state != ARCHIVE_WARN) return refuse(damageIn(bytes_, name_));
            takeMember(member);
        }
    }

private:
    void refuse(Text sentence) { gathered_.refusal = std::move(sentence); }

    void takeMember(archive_entry* member) {
        if (++members_ > limits_.members)
            return refuse(pathInWords(name_) + " holds more than " + std::to_string(limits_.members) +
                          " files. That is no archive of the vendor's.");
        const Text path = pathOf(member);
        if (Text refusal = refusalOf(member, path, name_); !refusal.empty())
            return refuse(std::move(refusal));
        const auto table = vendorTableAt(path);
        if (!table || archive_entry_filetype(member) != AE_IFREG) return;
        VendorTable taken{.name = *table, .path = path};
        if (readContent(taken.content)) gathered_.take(std::move(taken));
    }

    // Sizes that the archive states are not believed.
    bool readContent(Text& content) {
        constexpr std::size_t pieceSize = std::size_t{1} << 16;
        std::array<char, pieceSize> piece;
        while (true) {
            const auto count = archive_read_data(archive_.get(), piece.data(), piece.size());
            if (count == 0) return true;
            if (count < 0) {
                refuse(damageIn(bytes_, name_));
                return false;
            }
            unpacked_ += static_cast<std::size_t>(count);
            if (unpacked_ >
                std::min(limits_.bytes, std::max(limits_.freeOfRatio, bytes_.size() * limits_.ratio))) {
                refuse(pathInWords(name_) +
                       " unpacks to more than tables of a card can be. It was not unpacked.");
                return false;
            }
            content.append(piece.data(), static_cast<std::size_t>(count));
        }
    }

    TextView bytes_;
    TextView name_;
    Gathered& gathered_;
    const ZipLimits& limits_;
    OpenArchive archive_;
    std::size_t members_ = 0;
    std::size_t unpacked_ = 0;
};

} // namespace

void gatherFromZip(TextView archive, TextView name, Gathered& gathered, const ZipLimits& limits) {
    ZipReader{archive, name, gathered, limits}.gather();
}

} // namespace quillon
