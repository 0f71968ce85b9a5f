#include "cardfiles/notes.h"

#include "card/card_files.h"
#include "card/race_card.h"
#include "core/code_page.h"
#include "core/failure.h"
#include "screen/ports.h"

#include <algorithm>

namespace quillon {

Notes notes;

namespace {

constexpr char between = '\t';
constexpr TextView noOdds = "-";                   // typed and taken away again
constexpr TextView byteOrderMark = "\xEF\xBB\xBF"; // some editors begin a file of UTF-8 with it

FilePlace notesPlace() { return {Folder::working, "Notes.txt"}; }

// A line end or a tab inside would make another line, or another place in the line.
Text plain(TextView text) {
    Text words{text};
    std::replace_if(
        words.begin(), words.end(), [](char c) { return c >= 0 && c < blank; }, blank);
    return Text{trimmed(words)};
}

Text comparable(TextView name) { return upperCase(trimmed(name)); }

// Cuts the text before the next tab off; nothing without one.
std::optional<TextView> takePlace(TextView& rest) {
    const auto end = rest.find(between);
    if (end == TextView::npos) return std::nullopt;
    const TextView place = rest.substr(0, end);
    rest.remove_prefix(end + 1);
    return place;
}

std::optional<NoteLine> noteIn(TextView line) {
    const auto date = takePlace(line);
    const auto card = date ? takePlace(line) : std::nullopt;
    const auto name = card ? takePlace(line) : std::nullopt;
    if (!name || trimmed(*name).empty() || trimmed(line).empty()) return std::nullopt;
    return NoteLine{fromUtf8(trimmed(*date)), fromUtf8(trimmed(*card)), fromUtf8(trimmed(*name)),
                    fromUtf8(line)};
}

Text openCard() { return Text{cardNameOf(card.cardFileName)}; }

} // namespace

std::optional<NoteWords> noteWords(TextView words) {
    const auto sign = words.find('=');
    if (sign == TextView::npos) return std::nullopt;
    NoteWords note{plain(words.substr(0, sign)), plain(words.substr(sign + 1))};
    if (note.name.empty() || note.text.empty()) return std::nullopt;
    return note;
}

void Note(const Text& words) {
    const Step step{"Note"};
    const auto note = noteWords(words);
    if (!note) fail("a note without a name or a text");
    Text line;
    for (const Text& place : {plain(card.cardDate), plain(openCard()), note->name}) line += place + between;
    line += note->text;
    if (!attempt([&] { appendToFile(notesPlace(), toUtf8(line) + Text{crLf}); }))
        ports.error("File can't be written: " + shownPath(notesPlace()));
}

Text nameOfRace(int race) { return "Race " + std::to_string(race); }

Text nameOfOdds(int race, TextView number) {
    Text name = "Odds of race " + std::to_string(race) + ", number ";
    return name += trimmed(number);
}

void keepOdds(int race, TextView number, TextView odds) {
    const TextView kept = trimmed(odds);
    Note(nameOfOdds(race, number) + " = " + Text{kept.empty() ? noOdds : kept});
}

void Notes::takeUp() {
    std::optional<FileStamp> now;
    attempt([&] { now = fileStamp(notesPlace()); });
    if (now && now == stamp_) return;
    lines_.clear();
    byName_.clear();
    stamp_ = now;
    if (!now) return;
    if (const auto content = fileContent(notesPlace())) read(*content);
}

void Notes::read(TextView content) {
    if (content.starts_with(byteOrderMark)) content.remove_prefix(byteOrderMark.size());
    LineReader reader{content};
    while (const auto line = reader.next()) {
        auto note = noteIn(*line);
        if (!note) continue;
        byName_[comparable(note->name)].push_back(lines_.size());
        lines_.push_back(std::move(*note));
    }
}

std::vector<NoteLine> Notes::on(TextView name) const {
    std::vector<NoteLine> found;
    const auto places = byName_.find(comparable(name));
    if (places == byName_.end()) return found;
    for (const std::size_t at : places->second) found.push_back(lines_[at]);
    return found;
}

std::vector<NoteLine> Notes::onThisCard(TextView name) const {
    std::vector<NoteLine> found = on(name);
    std::erase_if(found, [&](const NoteLine& note) { return note.card != openCard(); });
    return found;
}

std::vector<NoteLine> Notes::onRace(int race) const { return onThisCard(nameOfRace(race)); }

Text Notes::odds(int race, TextView number) const {
    const std::vector<NoteLine> found = onThisCard(nameOfOdds(race, number));
    return found.empty() || found.back().text == noOdds ? Text{} : found.back().text;
}

} // namespace quillon
