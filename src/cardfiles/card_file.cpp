#include "cardfiles/card_file.h"

#include "card/fields.h"
#include "core/failure.h"
#include "core/files.h"

#include <array>
#include <charconv>
#include <tuple>
#include <type_traits>
#include <variant>

namespace quillon {
namespace {

constexpr int savedOutcomes = OutcomeCell::r4; // the fifth horse's cell is not saved
constexpr int savedPayoffs = PayoffCell::last;
constexpr int savedSelections = 4; // neither is its row

// A value of block 1: whose it is, and the column of the race view that shows it.
struct EntryValue {
    std::variant<TextCell RaceEntry::*, Text RaceEntry::*, Integer RaceEntry::*, Text PastLine::*,
                 Text RaceInfo::*>
        member; // of a past line: of the entry's chosen one
    int column = noColumn;
};

constexpr std::size_t valuesOfEntry = 44;

// Block 1, an entry's values in the order of the file, from the places that each field names.
constexpr std::array entryValues = [] {
    std::array<EntryValue, valuesOfEntry> values{};
    const auto put = [&](const auto&... field) {
        const auto putOne = [&](const auto& one) {
            if constexpr (std::is_constructible_v<decltype(EntryValue::member), decltype(one.member)>)
                if (one.places.fileValue > 0)
                    values[static_cast<std::size_t>(one.places.fileValue) - 1] = {one.member,
                                                                                  one.places.raceColumn};
        };
        (putOne(field), ...);
    };
    std::apply(put, raceEntryFields);
    std::apply(put, raceInfoFields);
    for (const LineField& field : lineFields)
        if (field.fileValue > 0)
            values[static_cast<std::size_t>(field.fileValue) - 1] = {field.cell, field.raceColumn};
    return values;
}();

constexpr bool everyPlaceIsTaken() {
    for (const EntryValue& value : entryValues)
        if (std::visit([](auto member) { return member == nullptr; }, value.member)) return false;
    return true;
}
static_assert(everyPlaceIsTaken());

// Block 4, a selection's values in the order of the file.
constexpr std::array selectionValues{&Selection::selectionName, &Selection::selectionDriver,
                                     &Selection::selectionOdds, &Selection::selectionRating};

constexpr std::size_t valuesOfRace = ratedEntries * entryValues.size() + savedOutcomes + savedPayoffs +
                                     savedSelections * selectionValues.size();
static_assert(ratedRaces * valuesOfRace == cardFileLines);

// What a user may have changed: the chosen line but for its track and purse, and the rating.
constexpr bool isTakenBack(int column) {
    return (column >= RaceColumn::classText && column <= RaceColumn::favourite) ||
           column == RaceColumn::rating;
}

// Entry and Info are constant when the card is written to a file.
template <class Entry, class Info, class Value>
auto& valueOf(Entry& entry, Info&, Value RaceEntry::*member) {
    return entry.*member;
}
template <class Entry, class Info>
auto& valueOf(Entry& entry, Info&, Text PastLine::*member) {
    return entry.chosen.*member;
}
template <class Entry, class Info>
auto& valueOf(Entry&, Info& info, Text RaceInfo::*member) {
    return info.*member;
}

// The text of a value that the race view shows.
struct ShownText {
    const RaceEntry& entry;

    TextView operator()(TextCell RaceEntry::*member) const { return entry.*member; }
    TextView operator()(Text RaceEntry::*member) const { return entry.*member; }
    TextView operator()(Text PastLine::*member) const { return entry.chosen.*member; }
    TextView operator()(auto) const { return {}; } // counts and conditions have no column
};

// The layout of the card file: hands each value to visit.value() in the order of the file, and each race to
// visit.endOfEntry() after the values of an entry.
template <class Card, class Visit>
void forEachCardValue(Card& card, Visit& visit) {
    for (int race = 1; race <= ratedRaces; ++race) {
        auto& info = card.raceInfo[{race}];
        for (int at = 1; at <= ratedEntries; ++at) {
            auto& entry = card.entry[{race, at}];
            for (const EntryValue& value : entryValues)
                std::visit([&](auto member) { visit.value(valueOf(entry, info, member)); }, value.member);
            visit.endOfEntry(info);
        }
    }
    for (int race = 1; race <= ratedRaces; ++race)
        for (int cell = 1; cell <= savedOutcomes; ++cell) visit.value(card.raceOutcome[{race, cell}]);
    for (int race = 1; race <= ratedRaces; ++race)
        for (int cell = 1; cell <= savedPayoffs; ++cell) visit.value(card.payoffRecord[{race, cell}]);
    for (int race = 1; race <= ratedRaces; ++race)
        for (int place = 1; place <= savedSelections; ++place)
            for (const auto member : selectionValues) visit.value(card.selection[{race, place}].*member);
}

class ValueWriter {
public:
    explicit ValueWriter(std::size_t expectedSize) { content_.reserve(expectedSize); }

    void value(const Text& text) { quoted(text); }

    void quoted(TextView text) {
        if (text.empty()) {
            content_ += "\"\"\r\n";
            return;
        }
        content_ += '"';
        if (contains(text, "\n"))
            appendOnOneLine(text);
        else
            content_ += text;
        content_ += "\"\r\n";
    }

    void value(const TextCell& cell) {
        if (cell.given())
            value(cell.text());
        else
            content_ += crLf;
    }

    void value(Integer number) {
        char digits[8];
        const auto end = std::to_chars(digits, digits + sizeof digits, number).ptr;
        content_.append(digits, end);
        content_ += crLf;
    }

    void endOfEntry(const RaceInfo&) {}

    Text content() && { return std::move(content_); }

private:
    void appendOnOneLine(TextView text) {
        for (const char c : text) content_ += c == '\r' || c == '\n' ? blank : c;
    }

    Text content_;
};

// The text of a line, or nothing on a line whose closing quote is missing.
std::optional<TextView> textOf(TextView line) {
    constexpr char quote = '"';
    if (!line.starts_with(quote)) return line; // typed in by hand without quotes
    if (line.size() < 2 || !line.ends_with(quote)) return std::nullopt;
    return line.substr(1, line.size() - 2);
}

// Reads one line a value. After the last line every value keeps what it has.
class ValueReader {
public:
    explicit ValueReader(TextView content) : lines_(content) {}

    /// The next text, a piece of the content; nothing on a damaged line and after the last.
    std::optional<TextView> nextText() {
        if (!nextLine()) return std::nullopt;
        const auto text = textOf(line_);
        if (!text) reportNoValue();
        return text;
    }

    void value(Text& text) {
        if (const auto read = nextText()) text = *read;
    }

    void value(TextCell& cell) {
        if (const auto read = nextText()) cell = line_.empty() ? TextCell{} : TextCell{*read};
    }

    void value(Integer& number) {
        if (!nextLine()) return;
        if (line_.empty())
            number = 0;
        else
            attempt([&] { number = toInteger(strictNumber(line_)); });
    }

    void endOfEntry(RaceInfo& race) {
        if (ended_) return;
        if (auto parts = splitLabelAndDistance(race.raceLabelDistance)) {
            race.label = std::move(parts->label);
            race.distance = std::move(parts->distance);
        } else if (race.label + race.distance != race.raceLabelDistance) { // those of another card
            race.label.clear();
            race.distance.clear();
        }
    }

private:
    bool nextLine() {
        const auto line = lines_.next();
        ended_ = !line;
        if (ended_) return false;
        line_ = *line;
        ++lineNumber_;
        return true;
    }

    void reportNoValue() const {
        reportFault("line " + std::to_string(lineNumber_) + " has no closing quote");
    }

    LineReader lines_;
    TextView line_;
    int lineNumber_ = 0;
    bool ended_ = false;
};

} // namespace

Text cardFileContent(const RaceCard& card) {
    constexpr std::size_t usualSize = 200'000;
    ValueWriter writer{usualSize};
    forEachCardValue(card, writer);
    return std::move(writer).content();
}

Text archiveContent(const RaceCard& card) {
    constexpr std::size_t usualSize = 700'000;
    ValueWriter writer{usualSize};
    for (int row = 1; row <= archiveRows; ++row)
        for (int column = 1; column <= archiveColumns; ++column)
            writer.quoted(card.lineCells.read(row, column));
    return std::move(writer).content();
}

void takeCardFile(TextView content, RaceCard& card) {
    ValueReader reader{content};
    forEachCardValue(card, reader);
}

void takeArchive(TextView content, RaceCard& card) {
    card.lineCells.clear();
    ValueReader reader{content};
    for (int row = 1; row <= archiveRows; ++row) {
        std::array<TextView, lineCellColumns> cells;
        for (std::size_t column = 1; column <= archiveColumns; ++column)
            cells[column] = reader.nextText().value_or("");
        const bool empty =
            std::all_of(cells.begin(), cells.end(), [](TextView cell) { return cell.empty(); });
        if (!empty) card.lineCells.writeLine(row, cells);
    }
}

void fillRaceViewRow(Grid& view, int row, const RaceEntry& entry) {
    for (const EntryValue& value : entryValues)
        if (value.column != noColumn)
            view(row, value.column).text = std::visit(ShownText{entry}, value.member);
}

void takeBackRaceViewRow(const Grid& view, int row, RaceEntry& entry) {
    for (const EntryValue& value : entryValues) {
        if (!isTakenBack(value.column)) continue;
        const Text& shown = view.read(row, value.column).text;
        if (const auto ofLine = std::get_if<Text PastLine::*>(&value.member))
            entry.chosen.*(*ofLine) = shown;
        else if (const auto ofEntry = std::get_if<Text RaceEntry::*>(&value.member))
            entry.*(*ofEntry) = shown;
    }
}

std::optional<LabelAndDistance> splitLabelAndDistance(TextView joined) {
    const auto split = [&](int labelLength, TextView distance) {
        return LabelAndDistance{Text{leftOf(joined, labelLength)}, Text{distance}};
    };
    const TextView letter = midOf(joined, 2, 1);
    if (letter == "A" || letter == "B") return split(2, rightOf(joined, 1));
    if (joined.size() == 2) return split(1, rightOf(joined, 1));
    if (joined.size() == 3) return split(2, rightOf(joined, 1));
    constexpr std::size_t shortestWithFraction = 6;
    if (joined.size() < shortestWithFraction) return std::nullopt;
    const int slash = placeOf("/", joined);
    constexpr int slashAfterOneDigitLabel = 5; // "71 1/8"
    if (slash < slashAfterOneDigitLabel) return std::nullopt;
    return split(slash == slashAfterOneDigitLabel ? 1 : 2, midOf(joined, slash - 1, slash + 2));
}

} // namespace quillon
