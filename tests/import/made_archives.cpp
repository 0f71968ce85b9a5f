#include "import/made_archives.h"

#include <archive.h>
#include <archive_entry.h>

#include <cstdint>
#include <stdexcept>

namespace quillon {
namespace {

void check(int state, archive* made) {
    if (state != ARCHIVE_OK) throw std::runtime_error(archive_error_string(made));
}

la_ssize_t append(archive*, void* text, const void* bytes, std::size_t count) {
    static_cast<Text*>(text)->append(static_cast<const char*>(bytes), count);
    return static_cast<la_ssize_t>(count);
}

void add(archive* made, const MadeMember& member) {
    archive_entry* entry = archive_entry_new();
    archive_entry_set_pathname(entry, member.path.c_str());
    archive_entry_set_perm(entry, 0644);
    const bool isFile = member.kind == MadeMember::Kind::file;
    archive_entry_set_filetype(entry, isFile ? AE_IFREG : AE_IFDIR);
    if (member.kind == MadeMember::Kind::symbolicLink) {
        archive_entry_set_filetype(entry, AE_IFLNK);
        archive_entry_set_symlink(entry, member.content.c_str());
    }
    archive_entry_set_size(entry, isFile ? static_cast<la_int64_t>(member.content.size()) : 0);
    check(archive_write_header(made, entry), made);
    if (isFile) archive_write_data(made, member.content.data(), member.content.size());
    archive_entry_free(entry);
}

std::uint32_t numberAt(const Text& bytes, std::size_t place, int length) {
    std::uint32_t number = 0;
    for (int i = length; i-- > 0;)
        number = number << 8 | static_cast<std::uint8_t>(bytes[place + static_cast<std::size_t>(i)]);
    return number;
}

void addToNumberAt(Text& bytes, std::size_t place, std::size_t addend) {
    const std::size_t number = numberAt(bytes, place, 4) + addend;
    for (std::size_t i = 0; i < 4; ++i) bytes[place + i] = static_cast<char>(number >> (8 * i) & 0xFF);
}

} // namespace

Text madeZip(const std::vector<MadeMember>& members, const Text& password) {
    Text bytes;
    archive* zip = archive_write_new();
    check(archive_write_set_format_zip(zip), zip);
    check(archive_write_set_bytes_in_last_block(zip, 1), zip);
    if (!password.empty()) {
        check(archive_write_set_options(zip, "zip:encryption=traditional"), zip);
        check(archive_write_set_passphrase(zip, password.c_str()), zip);
    }
    check(archive_write_open(zip, &bytes, nullptr, append, nullptr), zip);
    for (const MadeMember& member : members) add(zip, member);
    check(archive_write_close(zip), zip);
    archive_write_free(zip);
    return bytes;
}

// The list at the end names the place of each member 42 bytes into its row, and its own 16 bytes into the end.
Text behindProgram(const Text& zip, PlacesFrom places) {
    const Text program = "MZ" + Text(5000, '\x90');
    Text bytes = zip;
    if (places == PlacesFrom::file) {
        const std::size_t end = bytes.rfind("PK\x05\x06");
        std::size_t row = numberAt(bytes, end + 16, 4);
        for (std::uint32_t left = numberAt(bytes, end + 10, 2); left > 0; --left) {
            addToNumberAt(bytes, row + 42, program.size());
            row += 46 + numberAt(bytes, row + 28, 2) + numberAt(bytes, row + 30, 2) +
                   numberAt(bytes, row + 32, 2);
        }
        addToNumberAt(bytes, end + 16, program.size());
    }
    return program + bytes;
}

Text tarWithHardLink(const Text& file, const Text& link) {
    Text bytes;
    archive* tar = archive_write_new();
    check(archive_write_set_format_ustar(tar), tar);
    check(archive_write_open(tar, &bytes, nullptr, append, nullptr), tar);
    add(tar, {file, "content"});
    archive_entry* entry = archive_entry_new();
    archive_entry_set_pathname(entry, link.c_str());
    archive_entry_set_hardlink(entry, file.c_str());
    check(archive_write_header(tar, entry), tar);
    archive_entry_free(entry);
    check(archive_write_close(tar), tar);
    archive_write_free(tar);
    return bytes;
}

} // namespace quillon
