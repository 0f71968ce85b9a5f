#include "app/write_failures.h"

#include <algorithm>
#include <array>

namespace quillon {
namespace {

struct Cause {
    std::errc condition;
    TextView words;
};
struct FolderMeaning {
    Folder folder;
    TextView words;
};
struct FileMeaning {
    TextView name;
    TextView words;
};

// clang-format off
constexpr std::array causes{
    Cause{std::errc::no_space_on_device,              "no space left"},
    Cause{std::errc::file_too_large,                  "no space left for a file of this size"},
    Cause{std::errc::read_only_file_system,           "read-only"},
    Cause{std::errc::permission_denied,               "read-only"},
    Cause{std::errc::operation_not_permitted,         "read-only"},
    Cause{std::errc::text_file_busy,                  "used by another program"},
    Cause{std::errc::device_or_resource_busy,         "used by another program"},
    Cause{std::errc::resource_unavailable_try_again,  "used by another program"},
    Cause{std::errc::is_a_directory,                  "a folder has its name"},
    Cause{std::errc::directory_not_empty,             "a folder has its name"},
    Cause{std::errc::not_a_directory,                 "a file stands where its folder should be"},
    Cause{std::errc::file_exists,                     "a file stands where its folder should be"},
    Cause{std::errc::no_such_file_or_directory,       "its folder is missing"},
    Cause{std::errc::io_error,                        "the disk has failed"},
};

constexpr std::array folderMeanings{
    FolderMeaning{Folder::raceCards,     "the card is not saved"},
    FolderMeaning{Folder::archives,      "the card is not saved"},
    FolderMeaning{Folder::results,       "the results text on disk lacks what was to be added"},
    FolderMeaning{Folder::selections,    "the selection sheet on disk is older than the screen"},
    FolderMeaning{Folder::selections2,   "the pick tickets on disk are older than the screen"},
    FolderMeaning{Folder::programs,      "the condensed program on disk is older than the card"},
    FolderMeaning{Folder::entries,       "the entries list on disk is older than the card"},
    FolderMeaning{Folder::drivers,       "the drivers' ratings on disk are older than the card"},
    FolderMeaning{Folder::recovery,      "a crash would lose the changes that are not saved"},
    FolderMeaning{Folder::sourceTables,  "the tables are those from before"},
    FolderMeaning{Folder::imported,      "the old tables are not kept, and the new ones are not taken"},
};

constexpr std::array fileMeanings{
    FileMeaning{"HRA.ini",             "this card is not in the archive"},
    FileMeaning{"Stars5.ini",          "the stars' profile lacks this card"},
    FileMeaning{"Notes.txt",           "the note is not kept"},
    FileMeaning{"DriverList.txt",      "the list of drivers is older than the card"},
    FileMeaning{"Todays Results.txt",  "the day's results on disk are older than the summary"},
    FileMeaning{"Profile Results.txt", "the profile on disk is older than the screen"},
};
// clang-format on

} // namespace

Text causeInWords(const std::error_code& cause) {
    if (!cause) return "it can't be written";
    const auto known = std::find_if(causes.begin(), causes.end(), [&](const Cause& row) {
        return cause == make_error_condition(row.condition);
    });
    return known != causes.end() ? Text{known->words} : cause.message();
}

Text meaningOf(const FilePlace& place) {
    for (const FolderMeaning& row : folderMeanings)
        if (row.folder == place.folder) return Text{row.words};
    for (const FileMeaning& row : fileMeanings)
        if (row.name == place.name) return Text{row.words};
    return "the file on disk is as it was before";
}

} // namespace quillon
