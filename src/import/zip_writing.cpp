#include "import/zip_writing.h"

#include <archive.h>
#include <archive_entry.h>

#include <ctime>
#include <memory>

namespace quillon {
namespace {

constexpr int ownerMayWrite = 0644;

struct CloseArchive {
    void operator()(archive* opened) const { archive_write_free(opened); }
};
struct FreeEntry {
    void operator()(archive_entry* entry) const { archive_entry_free(entry); }
};

la_ssize_t append(archive*, void* text, const void* bytes, std::size_t count) {
    static_cast<Text*>(text)->append(static_cast<const char*>(bytes), count);
    return static_cast<la_ssize_t>(count);
}

bool add(archive* zip, const VendorTable& table) {
    const std::unique_ptr<archive_entry, FreeEntry> entry{archive_entry_new()};
    if (!entry) return false;
    archive_entry_set_pathname(entry.get(), Text{table.name}.c_str());
    archive_entry_set_filetype(entry.get(), AE_IFREG);
    archive_entry_set_perm(entry.get(), ownerMayWrite);
    archive_entry_set_mtime(entry.get(), std::time(nullptr), 0);
    archive_entry_set_size(entry.get(), static_cast<la_int64_t>(table.content.size()));
    if (archive_write_header(zip, entry.get()) != ARCHIVE_OK) return false;
    const auto size = static_cast<la_ssize_t>(table.content.size());
    return size == 0 || archive_write_data(zip, table.content.data(), table.content.size()) == size;
}

} // namespace

std::optional<Text> zipOf(const std::vector<VendorTable>& tables) {
    Text bytes;
    const std::unique_ptr<archive, CloseArchive> zip{archive_write_new()};
    bool isWell = zip && archive_write_set_format_zip(zip.get()) == ARCHIVE_OK &&
                  archive_write_set_bytes_in_last_block(zip.get(), 1) == ARCHIVE_OK &&
                  archive_write_open(zip.get(), &bytes, nullptr, append, nullptr) == ARCHIVE_OK;
    for (const VendorTable& table : tables) isWell = isWell && add(zip.get(), table);
    isWell = isWell && archive_write_close(zip.get()) == ARCHIVE_OK;
    if (!isWell) return std::nullopt;
    return bytes;
}

} // namespace quillon
