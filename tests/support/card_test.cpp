#include "support/card_test.h"

#include "core/failure.h"
#include "day/changes.h"
#include "day/keeping.h"
#include "day/recovery.h"
#include "day/snapshot.h"
#include "screen/told_ports.h"

#include <algorithm>
#include <array>
#include <fstream>
#include <sstream>

namespace quillon {
namespace {

namespace fs = std::filesystem;

#ifdef _WIN32

// The fixed folders lie on drive C:, so a test works there. It takes the drive over: it must be made for it.
constexpr std::array partsOfTheDrive{
    L"made for tests", L"Program Files", L"Program Files (x86)", L"ProgramData", L"users", L"windows",
};

void clearAway(const fs::path& drive) {
    std::error_code error;
    for (const auto& entry : fs::directory_iterator{drive})
        if (std::none_of(partsOfTheDrive.begin(), partsOfTheDrive.end(),
                         [&](const wchar_t* part) { return entry.path().filename() == part; }))
            fs::remove_all(entry.path(), error);
}

fs::path freshFolder() {
    const fs::path drive = "C:\\";
    if (!fs::is_directory(drive / partsOfTheDrive[0]))
        throw std::runtime_error("drive C: is not made for tests");
    clearAway(drive);
    return drive;
}

#else

fs::path freshFolder() {
    std::string pattern = (fs::temp_directory_path() / "quillon-test-XXXXXX").string();
    if (mkdtemp(pattern.data()) == nullptr) throw std::runtime_error("no temporary folder");
    return pattern;
}

void clearAway(const fs::path& folder) {
    std::error_code error;
    fs::remove_all(folder, error);
}

#endif

} // namespace

void writeLineCell(int lineNumber, int column, TextView cell) {
    std::array<TextView, lineCellColumns> cells;
    for (std::size_t at = 0; at < cells.size(); ++at)
        cells[at] = card.lineCells.read(lineNumber, static_cast<int>(at));
    cells.at(static_cast<std::size_t>(column)) = cell;
    card.lineCells.writeLine(lineNumber, cells);
}

CardTest::CardTest() : folder_(freshFolder()), before_(fs::current_path()) {
    fs::current_path(folder_);
    resetAll();
    journal.clear();

    const auto nextAnswer = [this]() -> std::optional<Text> {
        if (answers.empty()) return std::nullopt;
        Text answer = answers.front();
        answers.pop_front();
        return answer;
    };
    ports = toldPorts([this](const Text& line) { shown.push_back(line); }, nextAnswer);
}

CardTest::~CardTest() {
    ports = {};
    changes.end();
    noticeChanges();
    attempt(forgetLeftBehind);
    fs::current_path(before_);
    clearAway(folder_);
}

std::string CardTest::contentOf(const fs::path& path) {
    std::ifstream file{path, std::ios::binary};
    EXPECT_TRUE(file) << path << " is missing";
    std::ostringstream content;
    content << file.rdbuf();
    return content.str();
}

void CardTest::put(const fs::path& path, std::string_view content) {
    if (path.has_parent_path()) fs::create_directories(path.parent_path());
    std::ofstream{path, std::ios::binary} << content;
}

bool CardTest::exists(const fs::path& path) { return fs::exists(path); }

bool CardTest::journalTells(std::string_view text) {
    const auto& faults = journal.kept();
    return std::any_of(faults.begin(), faults.end(), [&](const Fault& fault) {
        return fault.what.find(text) != Text::npos || fault.step.find(text) != Text::npos;
    });
}

} // namespace quillon
