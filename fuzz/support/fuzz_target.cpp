#include "support/fuzz_target.h"

#include "app/start_up.h"
#include "card/race_card.h"
#include "console/show.h"
#include "console/show_store.h"
#include "core/failure.h"
#include "core/journal.h"
#include "screen/ports.h"
#include "tables/load_state.h"

#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <ostream>
#include <sstream>
#include <streambuf>

namespace quillon::fuzz {
namespace {

namespace fs = std::filesystem;

// Made once a process and taken away at its end.
class WorkingFolder {
public:
    WorkingFolder() {
        const char* chosen = std::getenv("QUILLON_FUZZ_FOLDER");
        const fs::path base = chosen                   ? fs::path{chosen}
                              : fs::exists("/dev/shm") ? "/dev/shm"
                                                       : fs::temp_directory_path();
        std::string pattern = (base / "quillon-fuzz-XXXXXX").string();
        ensure(mkdtemp(pattern.data()) != nullptr, "there is a temporary folder");
        outer_ = pattern;
        path_ = outer_ / "work";
        fs::create_directory(path_);
        fs::current_path(path_);
    }
    ~WorkingFolder() {
        std::error_code error;
        fs::current_path("/", error);
        fs::remove_all(outer_, error);
    }
    WorkingFolder(const WorkingFolder&) = delete;
    WorkingFolder& operator=(const WorkingFolder&) = delete;

    void empty() const {
        const auto beside = std::distance(fs::directory_iterator{outer_}, {});
        ensure(beside == 1, "nothing is written outside the working folder");
        for (const auto& entry : fs::directory_iterator{path_}) fs::remove_all(entry.path());
    }

private:
    fs::path outer_; // holds nothing else, so that what leads out of the working folder is seen
    fs::path path_;
};

// Takes everything and keeps nothing.
class NullBuffer : public std::streambuf {
    int_type overflow(int_type c) override { return traits_type::not_eof(c); }
    std::streamsize xsputn(const char*, std::streamsize count) override { return count; }
};

} // namespace

void ensure(bool holds, const char* what) {
    if (holds) return;
    std::fprintf(stderr, "NOT TRUE: %s\n", what);
    std::abort();
}

void beginInput() {
    static const WorkingFolder folder;
    folder.empty();
    ports = {};
    journal.clear();
    load = {};
    load.horse = {};
    StartUp();
}

void put(const fs::path& path, TextView content) {
    if (path.has_parent_path()) fs::create_directories(path.parent_path());
    std::ofstream file{path, std::ios::binary};
    file.write(content.data(), static_cast<std::streamsize>(content.size()));
}

void press(const char* name, const Arguments& arguments) {
    const Command* command = findCommand(name);
    ensure(command != nullptr, "the command is there");
    bool available = false; // also where the question itself fails
    attempt([&] { available = isAvailable(*command, arguments); });
    if (available) runCommand(*command, arguments);
}

void lookAt(const Grid& view) {
    std::size_t seen = 0;
    for (int row = 0; row < view.rows(); ++row)
        for (int column = 0; column < view.columns(); ++column) seen += view.text(row, column).size();
    constexpr std::size_t reasonable = std::size_t{1} << 28;
    ensure(seen < reasonable, "a view doesn't hold more than came in");
}

void lookAtScreen() {
    NullBuffer nothing;
    std::ostream out{&nothing};
    Transcript transcript{out};
    for (const char* part : {"header", "buttons", "board", "menu", "racelist", "filelist", "tracklist",
                             "driverlist", "starsfields", "faults"})
        show(part, commandTable(), transcript);
    for (const int view : {1, 2, ratedRaces}) lookAt(screen.raceView[static_cast<std::size_t>(view)]);
    for (const int view : {1, 2, ratedRaces, lineTableView, pastPerformanceView})
        lookAt(screen.dataView[static_cast<std::size_t>(view)]);
    for (const Grid* view : {&screen.summary, &screen.profile, &screen.tracks, &screen.picks, &screen.stars})
        lookAt(*view);
}

Text storeText() {
    std::ostringstream out;
    Transcript transcript{out};
    showStore(transcript);
    return out.str();
}

} // namespace quillon::fuzz
