// A user at work on a small card: each input is a walk through the command table, with arguments that mostly
// make sense, answers to what the commands ask, and files that change beneath them.
#include "app/start_up.h"
#include "screen/ports.h"
#include "support/byte_reader.h"
#include "support/fuzz_target.h"
#include "support/small_card.h"

#include <array>
#include <limits>
#include <optional>

using namespace quillon;

namespace {

namespace fs = std::filesystem;

// clang-format off
constexpr std::array oddNumbers{-1, 0, 1, 4, 12, 13, 20, 21, 23, 24, 25, 29, 30, 31, 32, 40, 200, 3001,
                                std::numeric_limits<int>::max(), std::numeric_limits<int>::min()};

constexpr std::array<TextView, 64> usualTexts{
    "", " ", "1", "2", "3", "4", "5", "9", "12", "13", "20", "23", "24", "25", "30", "31", "-1", "0", "1A",
    "  7", "32767", "32768", "1e9", "99.9", " 61.3", "60.0", "***", " - ", "4.60", "0.00", "1,204.40", "$",
    "$$$", "$$$$$", "ALL Margins", "ALL Odds", "2/1", "9/5", "EXIT", "1/2", "5/8", "1.M", "1.Q", "RACE 2",
    "RACE 24", "RACE 99", "DTN", "M1", "Yes", "No", "no name", "\"", "\r\n", "a, b", "Archer, P      0.310",
    "1-2-3", "1 - 2 / 3", "(5)", "QU", "\xBA", "\xE9t\xE9", "../x", "C:\\x", "SCR: 3, 4",
};

constexpr std::array changedFiles{
    "DriverList.txt", "TrackEditor.ini", "HRA.ini", "Stars5.ini", "HRA.txt", "Webpage.ini", "CrossOver.ini",
    "A Quillon PRO/TrackMaster ExE Files/RACESHR.DBF", "A Quillon PRO/TrackMaster ExE Files/HORSEHR.DBF",
    "A Quillon PRO/TrackMaster ExE Files/RUNLINHR.DBF", "A Quillon PRO/TrackMaster ExE Files/DRIVERHR.DBF",
};
constexpr std::array cardsFolders{
    "A Quillon PRO/Race Cards", "A Quillon PRO/Archives", "A Quillon PRO/Results", "A Quillon PRO/Selections",
    "A Quillon PRO/Programs", "A Quillon PRO/Entries", "A Quillon PRO/Drivers",
};
// clang-format on

class Walk {
public:
    explicit Walk(TextView input) : bytes_(input) {}

    void run() {
        open();
        constexpr int mostSteps = 100;
        for (int taken = 0; taken < mostSteps && !bytes_.atEnd(); ++taken) takeStep();
        fuzz::lookAtScreen();
        checkFiles();
    }

private:
    void open() {
        which_ = bytes_.choice(fuzz::smallCards);
        fuzz::putSmallCard(which_);
        takePorts();
    }

    // What the user answers is read when he is asked.
    void takePorts() {
        ports.question = [this](auto&, auto&) { return bytes_.choice(2) == 1; };
        ports.input = [this](auto&, auto&) { return answer(); };
        ports.progress = [this](double) { return bytes_.choice(2) == 0; };
        ports.end = [this] { ended_ = true; };
    }

    std::optional<Text> answer() {
        constexpr std::size_t cancels = 8; // one of so many
        if (bytes_.choice(cancels) == 0) return std::nullopt;
        return text();
    }

    // A row of the command table, or one of the things that happen between commands.
    void takeStep() {
        const auto commands = commandTable();
        constexpr std::size_t otherSteps = 3;
        const std::size_t step = bytes_.choice(commands.size() + otherSteps);
        if (step < commands.size()) return runAsUser(commands[step]);
        switch (step - commands.size()) {
        case 0: changeFile(); break;
        case 1: removeFile(); break;
        default: fuzz::lookAtScreen(); break;
        }
    }

    void runAsUser(const Command& command) {
        const Arguments arguments = argumentsOf(command.takes);
        fuzz::press(command.name, arguments);
        if (ended_) StartUp(); // the next process in the same folder
        ended_ = false;
    }

    Arguments argumentsOf(Takes takes) {
        Arguments arguments;
        switch (takes) {
        case Takes::nothing: break;
        case Takes::number: arguments.numbers[0] = number(); break;
        case Takes::text: arguments.text = text(); break;
        case Takes::numberAndText:
            arguments.numbers[0] = number();
            arguments.text = text();
            break;
        case Takes::cell:
            for (int& part : arguments.numbers) part = number();
            arguments.text = text();
            break;
        }
        return arguments;
    }

    int number() {
        constexpr int plainNumbers = 40;
        const int given = bytes_.byte();
        return given < plainNumbers ? given : oddNumbers[static_cast<std::size_t>(given) % oddNumbers.size()];
    }

    Text text() {
        switch (bytes_.choice(8)) {
        case 0: return lineOfList();
        case 1: return cellOfView();
        case 2: return Text{bytes_.text(bytes_.choice(32))};
        case 3: return fuzz::smallCardFile(which_);
        case 4: return Text(bytes_.byte() * std::size_t{4}, 'W');
        case 5: return std::to_string(number());
        default: return Text{bytes_.oneOf(usualTexts)};
        }
    }

    Text lineOfList() {
        const std::array lists{&screen.fileList,   &screen.trackList, &screen.driverList, &screen.raceList,
                               &screen.marginList, &screen.oddsList,  &screen.maxOddsList};
        const auto& lines = bytes_.oneOf(lists)->lines;
        return lines.empty() ? Text{} : lines[bytes_.choice(lines.size())];
    }

    Text cellOfView() {
        const Grid& view = screen.raceView[bytes_.choice(raceViews)];
        const auto row = bytes_.choice(static_cast<std::size_t>(view.rows()));
        return view.text(static_cast<int>(row),
                         static_cast<int>(bytes_.choice(static_cast<std::size_t>(view.columns()))));
    }

    fs::path someFile() {
        const std::size_t kind = bytes_.choice(2);
        if (kind == 0) return bytes_.oneOf(changedFiles);
        constexpr std::array extensions{"pmd", "pmx", "pmr", "pms", "ppp", "pmd2"};
        const fs::path folder = bytes_.oneOf(cardsFolders);
        const Text card = fuzz::smallCardFile(which_);
        return folder / (card.substr(0, card.find('.') + 1) + bytes_.oneOf(extensions));
    }

    void changeFile() {
        const fs::path path = someFile();
        if (fs::is_directory(path)) return;
        constexpr std::size_t longestContent = 100;
        fuzz::put(path, bytes_.text(bytes_.choice(longestContent)));
    }

    // In place of the file there may be a folder, which nobody can write to.
    void removeFile() {
        const fs::path path = someFile();
        fs::remove_all(path);
        if (bytes_.choice(4) == 0) fs::create_directories(path);
    }

    static void checkFiles() {
        for (const auto& entry : fs::recursive_directory_iterator{fs::current_path()}) {
            const std::string name = entry.path().filename().string();
            fuzz::ensure(!contains(name, ".quillon-"), "no file on the way to its place is left behind");
        }
    }

    fuzz::ByteReader bytes_;
    std::size_t which_ = 0;
    bool ended_ = false;
};

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    fuzz::beginInput();
    Walk{fuzz::textOf(data, size)}.run();
    ports = {}; // they pointed into the walk
    return 0;
}
