#include "app/change_words.h"

#include "card/columns.h"
#include "card/race_card.h"
#include "core/failure.h"
#include "results/board.h"
#include "screen/race_views.h"

namespace quillon {
namespace {

constexpr std::array boxNames{"S1", "S2", "S3", "S4", "first", "second", "third", "fourth"};

constexpr std::array toteNames{"",
                               "Win",
                               "Place of the first",
                               "Show of the first",
                               "Place of the second",
                               "Show of the second",
                               "Show of the third",
                               "Exacta",
                               "Trifecta",
                               "Superfecta",
                               "Box 10",
                               "Daily double"};

// "5 Oughta Be Famous"
Text horse(int race, int entry) {
    Text name;
    attempt([&] {
        const RaceEntry& there = card.entry(race, entry);
        name = Text{trimmed(there.programNumber)} + " " + Text{trimmed(there.horseName)};
    });
    return name;
}

Text takenOutWords(int race, int entry) {
    const bool removed = raceViewOf(race).text(entry, RaceColumn::track) == "X";
    return horse(race, entry) + (removed ? " removed" : " scratched");
}

Text lineWords(int race) {
    return horse(race, cursor.entry) + ": line " + std::to_string(cursor.row) + " taken";
}

Text driverWords(int race) {
    const int entry = screen.driverRow;
    return horse(race, entry) + ": driver " + Text{trimmed(card.entry[{race, entry}].chosenDriver)};
}

Text cellWords(const Arguments& arguments) {
    const auto& [race, row, column] = arguments.numbers;
    const bool isNamed = column < RaceColumn::count;
    const TextView head = isNamed ? raceColumns()[static_cast<std::size_t>(column)].head : TextView{};
    Text words = horse(race, row);
    words += ": ";
    words += head.empty() ? "column " + std::to_string(column) : Text{head};
    return words + " typed: " + arguments.text;
}

Text typedWords(TextView name, TextView text) {
    Text words{name};
    words += text.empty() ? TextView{" emptied"} : TextView{" typed: "};
    return words += text;
}

Text nameOfBox(CommandId id, int number) {
    const auto at = static_cast<std::size_t>(number);
    return id == CommandId::Box ? boxNames.at(at) : toteNames.at(at);
}

} // namespace

int raceOfChange(CommandId id, const Arguments& arguments) {
    switch (id) {
    case CommandId::AutoRecord:
    case CommandId::EBET:
    case CommandId::TakeAllIn: return 0;
    case CommandId::Cell: return arguments.numbers[0];
    default: return raceOnShow();
    }
}

Text changeWords(CommandId id, const Arguments& arguments, int race) {
    switch (id) {
    case CommandId::Command4: return takenOutWords(race, arguments.numbers[0]);
    case CommandId::Command3:
    case CommandId::Command7: return lineWords(race);
    case CommandId::DriverChoice: return driverWords(race);
    case CommandId::Cell: return cellWords(arguments);
    case CommandId::Box:
    case CommandId::Tote: return typedWords(nameOfBox(id, arguments.numbers[0]), arguments.text);
    case CommandId::Refunds: return typedWords("Refunds", arguments.text);
    case CommandId::HeatChoice: return horse(race, arguments.numbers[0]) + " entered in a heat";
    case CommandId::AutoRecord:
    case CommandId::EBET: return "results read";
    case CommandId::TakeAllIn: return "all boards taken in";
    default: return "board taken in"; // the arrows
    }
}

std::vector<MovedPlace> movedPlaces(const Change& change) {
    std::vector<MovedPlace> moved;
    if (change.race == 0) return moved;
    for (std::size_t at = 0; at < change.before.size(); ++at)
        if (change.before[at] != change.after[at])
            moved.push_back({static_cast<int>(at) + 1, change.before[at], change.after[at]});
    return moved;
}

} // namespace quillon
