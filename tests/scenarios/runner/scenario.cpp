#include "scenario.h"

#include "differences.h"
#include "file_bytes.h"
#include "table_text.h"

#include <algorithm>
#include <cstdlib>
#include <map>
#include <set>
#include <variant>

namespace scenarios {
namespace {

namespace fs = std::filesystem;

constexpr const char* programFolder = "A Quillon PRO";
constexpr const char* sourceFolder = "A Quillon PRO/TrackMaster ExE Files";
constexpr int mostScripts = 9;

using Files = std::map<std::string, std::string>; // contents by path

// "script.txt", "script2.txt" ...
std::string numberedName(const char* stem, int number) {
    return stem + (number == 1 ? std::string{} : std::to_string(number)) + ".txt";
}

std::vector<fs::path> entriesOf(const fs::path& folder) {
    std::error_code error;
    std::vector<fs::path> entries;
    for (const auto& entry : fs::directory_iterator{folder, error}) entries.push_back(entry.path());
    std::sort(entries.begin(), entries.end());
    return entries;
}

// All files in and below a folder; none for a missing one.
Files filesIn(const fs::path& folder) {
    Files files;
    std::error_code error;
    for (const auto& entry : fs::recursive_directory_iterator{folder, error}) {
        if (entry.is_directory()) continue;
        files[entry.path().lexically_relative(folder).generic_string()] =
            samples::readFile(entry.path()).value_or("(can't be read)");
    }
    return files;
}

std::vector<std::string> linesIn(const fs::path& file) {
    const std::string text = samples::readFile(file).value_or("");
    std::vector<std::string> lines;
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t end = std::min(text.find('\n', at), text.size());
        std::string line = text.substr(at, end - at);
        if (line.ends_with('\r')) line.pop_back();
        lines.push_back(std::move(line));
        at = end + 1;
    }
    return lines;
}

bool hasCommand(const fs::path& script) {
    const auto lines = linesIn(script);
    return std::any_of(lines.begin(), lines.end(),
                       [](const std::string& line) { return !line.empty() && line[0] != '#'; });
}

// The shell's command that runs the console on a script.
std::string commandLine(const std::string& launcher, const fs::path& console, const fs::path& script,
                        const fs::path& transcript) {
    const auto quoted = [](const fs::path& path) {
#ifdef _WIN32
        return '"' + path.string() + '"';
#else
        std::string text = "'";
        for (const char c : path.string()) text += c == '\'' ? std::string{"'\\''"} : std::string{c};
        return text + "'";
#endif
    };
    const std::string program = (launcher.empty() ? "" : quoted(launcher) + " ") + quoted(console);
    const std::string command = program + " < " + quoted(script) + " > " + quoted(transcript);
#ifdef _WIN32
    return '"' + command + '"'; // the shell there takes the outermost quotes off
#else
    return command;
#endif
}

void moveProgramFolder(const fs::path& from, const fs::path& to) {
    if (from != to && fs::exists(from / programFolder)) fs::rename(from / programFolder, to / programFolder);
}

class Run {
public:
    Run(const fs::path& scenario, const Setting& setting)
        : scenario_(fs::absolute(scenario)), console_(fs::absolute(setting.console)),
          launcher_(setting.launcher), sample_(setting.sampleFolder),
          work_(fs::absolute(setting.workFolder) / scenario_.filename()), folder_(work_ / "folder"),
          drive_(setting.drive.empty() ? folder_ : fs::absolute(setting.drive)) {}

    std::vector<std::string> complaints() {
        checkParts();
        if (drive_ != folder_ && fs::exists(drive_ / programFolder)) // never to be moved away or written over
            complain((drive_ / programFolder).string() + " is in use");
        if (complaints_.empty()) layOutFolder();
        if (complaints_.empty()) runScripts();
        return std::move(complaints_);
    }

private:
    void complain(std::string text) { complaints_.push_back(std::move(text)); }

    fs::path expected(const std::string& name) const { return scenario_ / "expected" / name; }
    fs::path script(int number) const { return scenario_ / numberedName("script", number); }

    void checkParts();
    void checkNames(const fs::path& folder, const std::set<std::string>& known);
    void layOutFolder();
    void layOutSample();
    void layOutCard();
    void runScripts();
    void runScript(int number);
    int runConsole(int number) const;
    void compareFiles(const Files& before);
    void compareOutcome(const std::string& path, const std::string& content, const Files& before);

    fs::path scenario_;
    fs::path console_;
    std::string launcher_;
    fs::path sample_;
    fs::path work_;
    fs::path folder_; ///< the console's working folder
    fs::path drive_;  ///< has the fixed folders while the console runs
    int scripts_ = 0;
    std::vector<std::string> complaints_;
};

// A scenario with a misspelt part would claim less than its author thinks.
void Run::checkParts() {
    std::set<std::string> parts{"card", "folder", "uses", "expected"};
    std::set<std::string> expectations{"files", "ignored.txt"};
    while (scripts_ < mostScripts && fs::exists(script(scripts_ + 1))) {
        const int number = ++scripts_;
        const std::string transcript = numberedName("transcript", number);
        parts.insert(numberedName("script", number));
        expectations.insert(transcript);
        if (!hasCommand(script(number))) complain(numberedName("script", number) + " has no command");
        if (!fs::exists(expected(transcript))) complain("expected/" + transcript + " is missing");
    }
    if (scripts_ == 0) complain("script.txt is missing");
    checkNames(scenario_, parts);
    checkNames(scenario_ / "expected", expectations);
}

void Run::checkNames(const fs::path& folder, const std::set<std::string>& known) {
    for (const fs::path& entry : entriesOf(folder))
        if (known.count(entry.filename().string()) == 0)
            complain(entry.lexically_relative(scenario_).generic_string() + " is no part of a scenario");
}

void Run::layOutFolder() {
    fs::remove_all(work_);
    fs::create_directories(folder_);
    if (fs::exists(scenario_ / "uses")) layOutSample();
    if (fs::exists(scenario_ / "card")) layOutCard();
    if (fs::exists(scenario_ / "folder"))
        fs::copy(scenario_ / "folder", folder_,
                 fs::copy_options::recursive | fs::copy_options::overwrite_existing);
}

// The sample's settings and fixed folders; what else lies beside them is not the program's.
void Run::layOutSample() {
    if (linesIn(scenario_ / "uses") != std::vector<std::string>{"sample"})
        return complain("uses: only \"sample\" can be used");
    const auto before = entriesOf(folder_);
    for (const fs::path& entry : entriesOf(sample_))
        if (entry.extension() == ".ini" || entry.filename() == programFolder)
            fs::copy(entry, folder_ / entry.filename(), fs::copy_options::recursive);
    if (entriesOf(folder_) == before) complain("uses: the sample working folder is missing");
}

void Run::layOutCard() {
    const fs::path tables = folder_ / sourceFolder;
    fs::create_directories(tables);
    for (const fs::path& part : entriesOf(scenario_ / "card")) {
        const std::string name = "card/" + part.filename().string();
        if (part.extension() != ".txt") {
            fs::copy(part, tables / part.filename(), fs::copy_options::overwrite_existing);
            continue;
        }
        const auto read = samples::readTableText(samples::readFile(part).value_or(""));
        if (const auto* error = std::get_if<samples::TextError>(&read)) {
            complain(name + ":" + std::to_string(error->line) + ": " + error->message);
            continue;
        }
        const fs::path table = tables / part.filename().replace_extension(".DBF");
        if (!samples::writeTable(table, std::get<samples::Table>(read)))
            complain(name + " can't be laid out");
    }
}

void Run::runScripts() {
    const Files before = filesIn(folder_);
    for (int number = 1; number <= scripts_; ++number) runScript(number);
    compareFiles(before);
    if (!complaints_.empty()) complain("what came is in " + work_.string());
}

int Run::runConsole(int number) const {
    const fs::path transcript = work_ / numberedName("transcript", number);
    const fs::path outside = fs::current_path();
    moveProgramFolder(folder_, drive_);
    fs::current_path(folder_);
    const int status = std::system(commandLine(launcher_, console_, script(number), transcript).c_str());
    fs::current_path(outside);
    moveProgramFolder(drive_, folder_);
    return status;
}

void Run::runScript(int number) {
    const std::string name = numberedName("transcript", number);
    const int status = runConsole(number);
    if (status != 0)
        complain(numberedName("script", number) + " ended with status " + std::to_string(status));
    const std::string changes = difference(samples::readFile(expected(name)).value_or(""),
                                           samples::readFile(work_ / name).value_or(""));
    if (!changes.empty()) complain("expected/" + name + " differs " + changes);
}

void Run::compareFiles(const Files& before) {
    const Files wanted = filesIn(expected("files"));
    const Files after = filesIn(folder_);
    const auto ignoredLines = linesIn(expected("ignored.txt"));
    const std::set<std::string> ignored(ignoredLines.begin(), ignoredLines.end());

    for (const auto& [path, content] : wanted) {
        const auto came = after.find(path);
        const std::string name = "expected/files/" + path;
        if (came == after.end())
            complain(name + " differs: there is no such file");
        else if (came->second != content)
            complain(name + " differs " + difference(content, came->second));
    }
    for (const auto& [path, content] : after)
        if (wanted.count(path) == 0 && ignored.count(path) == 0) compareOutcome(path, content, before);
    for (const auto& [path, content] : before)
        if (after.count(path) == 0 && wanted.count(path) == 0 && ignored.count(path) == 0)
            complain(path + " is gone");
}

// A file that no expectation names must be as it was. What is kept against a crash stays where a script ends
// with unsaved changes, and is the program's own.
void Run::compareOutcome(const std::string& path, const std::string& content, const Files& before) {
    if (path.starts_with(std::string{programFolder} + "/Recovery/")) return;
    const auto was = before.find(path);
    if (was == before.end())
        complain(path + " is new, and no expectation names it:\n" + firstLines(content, "+"));
    else if (was->second != content)
        complain(path + " changed, and no expectation names it, " + difference(was->second, content));
}

} // namespace

std::vector<std::string> complaintsAbout(const fs::path& scenario, const Setting& setting) {
    return Run{scenario, setting}.complaints();
}

} // namespace scenarios
