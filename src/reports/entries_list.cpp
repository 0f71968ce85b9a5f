#include "reports/entries_list.h"

#include "card/card_files.h"
#include "card/race_card.h"
#include "core/failure.h"
#include "reports/report_writer.h"
#include "reports/viewers.h"
#include "tables/load_state.h"

namespace quillon {
namespace {

// clang-format off
constexpr const char* heading   =
    "PP  PN   ML  ENTRY                                        DRIVER              PR";
constexpr const char* entryLine = "{}  {} {} {}{}{}{}{}";
constexpr const char* raceLine  = "Race {}";
// clang-format on

constexpr int columnWidth = 20; ///< of the morning line with the gap after the name, and of the driver
constexpr int postWidth = 3;

/// Where the list believes itself to be: the race of its last heading, and the lines printed under it.
struct ListPlace {
    int race = 1;
    int printed = 0;
};

// A recalled card has no post and no driver of its own: they are the row's and the one that was shown.
Text postOf(const RaceEntry& entry, int post) {
    return entry.postPosition.empty() ? rightAligned(std::to_string(post), postWidth) : entry.postPosition;
}

TextView driverOf(const RaceEntry& entry) {
    return trimmed(entry.driverName.empty() ? TextView{entry.chosenDriver} : TextView{entry.driverName});
}

// The rating goes by the lines printed under the heading, not by the post; none after the last entry.
TextView ratingAt(const ListPlace& place) {
    return place.printed < entryExtent ? trimmed(card.entry(place.race, place.printed).rating) : TextView{};
}

void addEntry(ReportWriter& list, const RaceEntry& entry, int post, TextView rating) {
    const TextView odds = entry.morningOdds;
    const TextView driver = driverOf(entry);
    const Text behindName = blanks(columnWidth - static_cast<int>(odds.size()));
    const Text behindDriver = blanks(columnWidth - static_cast<int>(driver.size()));
    list.line(entryLine, postOf(entry, post), entry.programNumber, odds, entry.horseName, behindName, driver,
              behindDriver, rating);
}

// One slot for each race and post. An empty slot is an empty line, and at the end of a race the next heading.
// A full race of twelve leaves none there, so that the next race's entries go on under its heading.
void addSlots(ReportWriter& list) {
    ListPlace place;
    for (int race = 1; race <= ratedRaces; ++race) {
        for (int post = 1; post <= ratedEntries; ++post) {
            const RaceEntry& entry = card.entry(race, post);
            if (!trimmed(entry.horseName).empty()) {
                ++place.printed;
                attempt([&] { addEntry(list, entry, post, ratingAt(place)); });
            } else if (post < ratedEntries) {
                list.line("");
            } else {
                place = {.race = place.race + 1};
                if (place.race > card.raceCount) return;
                list.line(raceLine, listNumber(place.race));
            }
        }
    }
}

} // namespace

void Entries() {
    const Step step{"Entries"};
    const FilePlace file = cardFile(Folder::entries, "txt");
    ReportWriter list;
    addMeeting(list);
    list.line("{}", load.lineRows.field("CALL_ST_PO"));
    list.line("");
    list.line("");
    list.line(heading);
    list.line(raceLine, listNumber(1));
    addSlots(list);
    attempt([&] { writeFile(file, list.content()); });
    showInViewer(file);
}

} // namespace quillon
