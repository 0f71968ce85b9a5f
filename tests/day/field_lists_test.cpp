// Every member of the state stands in a list of fields: what is in none would be lost where state is packed.
#include "card/fields.h"
#include "screen/screen_fields.h"
#include "support/member_count.h"
#include "tables/load_fields.h"

#include <gtest/gtest.h>

#include <set>

namespace quillon {
namespace {

/// The fields that lists of a record name, each of them once.
template <class Record, class... Lists>
std::size_t fieldsNamed(const Lists&... lists) {
    const Record record{};
    std::set<const void*> members;
    std::set<TextView> names;
    std::size_t count = 0;
    const auto note = [&](TextView name, const auto& member) {
        members.insert(&member);
        names.insert(name);
        ++count;
    };
    (forEachField(lists, record, note), ...);
    EXPECT_EQ(count, members.size()) << "a member is named twice";
    EXPECT_EQ(count, names.size()) << "a name stands twice";
    return count;
}

TEST(FieldLists, NameEveryMemberOfTheStore) {
    EXPECT_EQ(memberCount<RaceCard>, fieldsNamed<RaceCard>(cardScalars, furtherScalars, cardTables));
    EXPECT_EQ(memberCount<RaceInfo>, fieldsNamed<RaceInfo>(raceInfoFields));
    EXPECT_EQ(memberCount<PastLine>, fieldsNamed<PastLine>(pastLineFields));
    EXPECT_EQ(memberCount<RaceEntry>, fieldsNamed<RaceEntry>(raceEntryFields) + 1); // and `chosen`
    EXPECT_EQ(memberCount<Driver>, fieldsNamed<Driver>(driverFields));
    EXPECT_EQ(memberCount<Selection>, fieldsNamed<Selection>(selectionFields));
    EXPECT_EQ(memberCount<LineCursor>, fieldsNamed<LineCursor>(lineCursorFields));
}

TEST(FieldLists, NameEveryMemberOfTheScreen) {
    EXPECT_EQ(memberCount<Screen>, fieldsNamed<Screen>(screenFields));
    EXPECT_EQ(memberCount<Colour>, fieldsNamed<Colour>(colourFields));
    EXPECT_EQ(memberCount<Button>, fieldsNamed<Button>(buttonFields));
    EXPECT_EQ(memberCount<Box>, fieldsNamed<Box>(boxFields));
    EXPECT_EQ(memberCount<Label>, fieldsNamed<Label>(labelFields));
    EXPECT_EQ(memberCount<ChoiceList>, fieldsNamed<ChoiceList>(choiceListFields));
    EXPECT_EQ(memberCount<MenuState>, fieldsNamed<MenuState>(menuStateFields));
    EXPECT_EQ(memberCount<RaceHeader>, fieldsNamed<RaceHeader>(raceHeaderFields));
}

TEST(FieldLists, NameEveryMemberOfWhatALoadKeeps) {
    EXPECT_EQ(memberCount<LoadState>, fieldsNamed<LoadState>(loadStateFields));
    EXPECT_EQ(memberCount<SourceLine>, fieldsNamed<SourceLine>(furtherLineFields) + 1); // and the past line
    EXPECT_EQ(memberCount<SourceHorse>, fieldsNamed<SourceHorse>(horseFields));
    EXPECT_EQ(memberCount<TrackRecord>, fieldsNamed<TrackRecord>(trackRecordFields));
    EXPECT_EQ(memberCount<TrackTable>, fieldsNamed<TrackTable>(trackTableFields));
}

} // namespace
} // namespace quillon
