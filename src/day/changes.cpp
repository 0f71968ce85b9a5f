#include "day/changes.h"

#include "card/fields.h"
#include "core/failure.h"
#include "screen/ports.h"

#include <algorithm>
#include <utility>

namespace quillon {

ChangeList changes;

namespace {

FileContent contentOf(const FilePlace& place) {
    auto content = fileContent(place);
    return content ? std::make_shared<const Text>(std::move(*content)) : nullptr;
}

bool same(const FileContent& left, const FileContent& right) {
    return left == right || (left && right && *left == *right);
}

// Keeps every file as it stands before its first write, while it lives.
class WrittenFiles {
public:
    WrittenFiles() {
        fileWatch = [this](const FilePlace& place) { keep(place); };
    }
    ~WrittenFiles() { fileWatch = nullptr; }
    WrittenFiles(const WrittenFiles&) = delete;
    WrittenFiles& operator=(const WrittenFiles&) = delete;

    /// The files that differ now from what they were.
    std::vector<FileChange> changed() {
        for (FileChange& file : files_) file.after = contentOf(file.place);
        std::erase_if(files_, [](const FileChange& file) { return same(file.before, file.after); });
        return std::move(files_);
    }

private:
    void keep(const FilePlace& place) {
        const bool isKept = std::any_of(files_.begin(), files_.end(), [&](const FileChange& file) {
            return file.place.folder == place.folder && file.place.name == place.name;
        });
        if (!isKept) files_.push_back({place, contentOf(place), nullptr});
    }

    std::vector<FileChange> files_;
};

// The mode of a recall ends by itself and is nothing that the user changed.
bool isMode(TextView field) { return field == "recallMode"; }

bool storeDiffers(const RaceCard& before, const RaceCard& after) {
    bool differs = false;
    const auto compare = [&](const auto& field) {
        if (!isMode(field.name) && !(before.*field.member == after.*field.member)) differs = true;
    };
    std::apply([&](const auto&... field) { (compare(field), ...); }, cardScalars);
    std::apply([&](const auto&... table) { (compare(table), ...); }, cardTables);
    return differs;
}

bool screenDiffers(const Screen& before, const Screen& after) {
    for (std::size_t race = 1; race <= ratedRaces; ++race)
        if (!before.raceView[race].sameTexts(after.raceView[race]) ||
            !before.dataView[race].sameTexts(after.dataView[race]))
            return true;
    const auto sameText = [](const Box& left, const Box& right) { return left.text == right.text; };
    return before.tote != after.tote || before.refunds != after.refunds ||
           !std::equal(before.boxes.begin(), before.boxes.end(), after.boxes.begin(), sameText);
}

bool differs(const Snapshot& before, const Snapshot& after, Compared compared) {
    return storeDiffers(before.card(), after.card()) ||
           (compared == Compared::everything && screenDiffers(before.screen(), after.screen()));
}

TopFour topFourOf(const RaceCard& card, int race) {
    TopFour numbers;
    for (std::size_t place = 0; place < numbers.size(); ++place)
        numbers[place] =
            trimmed(card.raceOutcome[{std::max(race, 1), OutcomeCell::s1 + static_cast<int>(place)}]);
    return numbers;
}

void putFile(const FilePlace& place, const FileContent& content) {
    if (content)
        writeFile(place, *content);
    else
        removeFile(place);
}

// A file as a row of changes left it, and as it shall be.
void putBack(const FilePlace& place, const FileContent& left, const FileContent& wanted) {
    if (!same(contentOf(place), left)) {
        ports.note(shownPath(place) + " has changed since");
        return;
    }
    attempt([&] { putFile(place, wanted); });
}

} // namespace

void ChangeList::touch() {
    static std::uint64_t last = 0;
    version_ = ++last;
}

void ChangeList::begin() {
    touch();
    changes_.clear();
    states_.assign(1, Snapshot::taken());
    loaded_ = states_.front();
    position_ = savedAt_ = lostSinceSave_ = 0;
    recorded_ = false;
}

void ChangeList::end() {
    touch();
    changes_.clear();
    states_.clear();
    loaded_.reset();
    position_ = savedAt_ = lostSinceSave_ = 0;
}

void ChangeList::run(const CardCommand& command) {
    if (!isOpen()) return (void)attempt(command.run);
    Snapshot before = Snapshot::taken();
    before.shareWith(states_[position_]);
    WrittenFiles files;
    attempt(command.run);
    std::vector<FileChange> written = files.changed();
    Snapshot after = Snapshot::taken();
    after.shareWith(before);
    if (written.empty() && !differs(before, after, command.compared)) return;
    touch();

    Change change{.race = command.race, .what = command.words(), .files = std::move(written)};
    change.before = topFourOf(before.card(), command.race);
    change.after = topFourOf(after.card(), command.race);
    if (savedAt_ > position_) {
        lostSinceSave_ += savedAt_ - position_;
        savedAt_ = position_;
    }
    changes_.resize(position_);
    states_.resize(position_);
    changes_.push_back(std::move(change));
    states_.push_back(std::move(before));
    states_.push_back(std::move(after));
    ++position_;
}

void ChangeList::undo() {
    if (canUndo()) goTo(position_ - 1, states_[position_ - 1]);
}

void ChangeList::redo() {
    if (canRedo()) goTo(position_ + 1, states_[position_ + 1]);
}

void ChangeList::undoTo(std::size_t number) {
    if (number < position_) goTo(number, number == 0 ? *loaded_ : states_[number]);
}

void ChangeList::takeStateIn() {
    Snapshot now = Snapshot::taken();
    now.shareWith(states_[position_]);
    states_[position_] = std::move(now);
}

// What the user looked at meanwhile belongs to the state that is left, so that the way back ends there.
void ChangeList::goTo(std::size_t position, const Snapshot& state) {
    touch();
    const Snapshot wanted = state;
    takeStateIn();
    putFilesBack(position);
    const bool wasRecorded = recorded_;
    wanted.putBack();
    if (wasRecorded) screen.record.enabled = false;
    position_ = position;
}

// Each file once, however many changes wrote it.
void ChangeList::putFilesBack(std::size_t position) {
    const bool back = position < position_;
    const auto first = changes_.begin() + static_cast<std::ptrdiff_t>(std::min(position, position_));
    const auto last = changes_.begin() + static_cast<std::ptrdiff_t>(std::max(position, position_));
    std::vector<FileChange> whole; // from before the first change to after the last
    for (auto change = first; change != last; ++change)
        for (const FileChange& file : change->files) {
            const auto known = std::find_if(whole.begin(), whole.end(), [&](const FileChange& other) {
                return other.place.folder == file.place.folder && other.place.name == file.place.name;
            });
            if (known == whole.end())
                whole.push_back(file);
            else
                known->after = file.after;
        }
    for (const FileChange& file : whole)
        putBack(file.place, back ? file.after : file.before, back ? file.before : file.after);
}

void ChangeList::saved() {
    touch();
    savedAt_ = position_;
    lostSinceSave_ = 0;
}

std::size_t ChangeList::unsaved() const {
    const std::size_t away = position_ > savedAt_ ? position_ - savedAt_ : savedAt_ - position_;
    return lostSinceSave_ + away;
}

} // namespace quillon
