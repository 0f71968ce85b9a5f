// One list of fields a record, by name: reset, show, and the differences that tests print are made from it.
#pragma once

#include "card/line_fields.h"
#include "card/race_card.h"

#include <tuple>

namespace quillon {

/// Where else a field is known.
struct FieldPlaces {
    int fileValue = 0;            ///< place among an entry's values in the card file, 0 for none
    int raceColumn = noColumn;    ///< of a race view
    const char* vendor = nullptr; ///< its name in the vendor's race table, when it is taken as it stands
};

template <class Record, class Value>
struct Field {
    const char* name;
    Value Record::*member;
    FieldPlaces places{};
};

template <class Record, class Value>
Field(const char*, Value Record::*) -> Field<Record, Value>;
template <class Record, class Value>
Field(const char*, Value Record::*, FieldPlaces) -> Field<Record, Value>;

/// Calls visit(name, value) for each field of the list, in its order.
template <class List, class Record, class Visit>
void forEachField(const List& list, Record& record, Visit visit) {
    std::apply([&](const auto&... field) { (visit(TextView{field.name}, record.*field.member), ...); }, list);
}

inline constexpr std::tuple cardScalars{
    Field{"cardFileName", &RaceCard::cardFileName},
    Field{"raceCount", &RaceCard::raceCount},
    Field{"labelledRaces", &RaceCard::labelledRaces},
    Field{"raceOffset", &RaceCard::raceOffset},
    Field{"trackSize", &RaceCard::trackSize},
    Field{"stretchLength", &RaceCard::stretchLength},
    Field{"maxPosts", &RaceCard::maxPosts},
    Field{"totalLines", &RaceCard::totalLines},
    Field{"cardDate", &RaceCard::cardDate},
    Field{"recallMode", &RaceCard::recallMode},
    Field{"poolText", &RaceCard::poolText},
    Field{"poolLegs", &RaceCard::poolLegs},
    Field{"s1Wins", &RaceCard::s1Wins},
    Field{"s2Wins", &RaceCard::s2Wins},
    Field{"s3Wins", &RaceCard::s3Wins},
    Field{"s4Wins", &RaceCard::s4Wins},
    Field{"superfectaRaces", &RaceCard::superfectaRaces},
};

// clang-format off
inline constexpr std::tuple raceInfoFields{
    Field{"label",             &RaceInfo::label},
    Field{"trackCode",         &RaceInfo::trackCode, {.fileValue = 38}},
    Field{"trackInfo",         &RaceInfo::trackInfo, {.fileValue = 39}},
    Field{"purse",             &RaceInfo::purse,     {.fileValue = 34, .vendor = "PURSE"}},
    Field{"classText",         &RaceInfo::classText, {.fileValue = 35, .vendor = "RACETEXT1"}},
    Field{"todaysCr",          &RaceInfo::todaysCr,  {.fileValue = 36, .vendor = "TODAYS_CR"}},
    Field{"wagering",          &RaceInfo::wagering,  {.fileValue = 37, .vendor = "RACEWAGERS"}},
    Field{"postTime",          &RaceInfo::postTime,  {.fileValue = 33, .vendor = "POSTTIME"}},
    Field{"gait",              &RaceInfo::gait,      {.fileValue = 43, .vendor = "GAIT"}},
    Field{"distance",          &RaceInfo::distance,  {.vendor = "DISTANCE"}},
    Field{"ratingNote",        &RaceInfo::ratingNote},
    Field{"raceLabelDistance", &RaceInfo::raceLabelDistance, {.fileValue = 44}},
};
// clang-format on

/// The fields of a past line, from the table of what the vendor has of it.
inline constexpr struct {
} pastLineFields;

template <class Record, class Visit>
void forEachField(decltype(pastLineFields), Record& line, Visit visit) {
    for (const LineField& field : lineFields) visit(TextView{field.name}, line.*field.cell);
    visit(TextView{"driverName"}, line.driverName);
    visit(TextView{"rating"}, line.rating);
    visit(TextView{"lineNumber"}, line.lineNumber);
}

/// The fields of an entry but for `chosen`, whose own fields are those of a past line.
// clang-format off
inline constexpr std::tuple raceEntryFields{
    Field{"horseName",         &RaceEntry::horseName,     {.fileValue =  1, .raceColumn = RaceColumn::horseName}},
    Field{"programNumber",     &RaceEntry::programNumber, {.fileValue =  3, .raceColumn = RaceColumn::programNumber}},
    Field{"morningOdds",       &RaceEntry::morningOdds,   {.fileValue =  2, .raceColumn = RaceColumn::morningOdds}},
    Field{"postPosition",      &RaceEntry::postPosition},
    Field{"driverNumber",      &RaceEntry::driverNumber},
    Field{"driverName",        &RaceEntry::driverName},
    Field{"driverUdr",         &RaceEntry::driverUdr,     {.fileValue = 31, .raceColumn = RaceColumn::udr}},
    Field{"chosenDriver",      &RaceEntry::chosenDriver,  {.fileValue = 30, .raceColumn = RaceColumn::driver}},
    Field{"trainerName",       &RaceEntry::trainerName,   {.fileValue = 42}},
    Field{"favMark",           &RaceEntry::favMark,       {.fileValue = 29, .raceColumn = RaceColumn::favourite}},
    Field{"linesInLastWindow", &RaceEntry::linesInLastWindow, {.fileValue = 40}},
    Field{"linesInFiftyDays",  &RaceEntry::linesInFiftyDays,  {.fileValue = 41}},
    Field{"chosenLineNumber",  &RaceEntry::chosenLineNumber},
    Field{"rating",            &RaceEntry::rating,        {.fileValue = 32, .raceColumn = RaceColumn::rating}},
};
// clang-format on

inline constexpr std::tuple driverFields{
    Field{"name", &Driver::name},
    Field{"udr", &Driver::udr},
};

inline constexpr std::tuple selectionFields{
    Field{"selectionName", &Selection::selectionName}, Field{"selectionDriver", &Selection::selectionDriver},
    Field{"selectionOdds", &Selection::selectionOdds}, Field{"selectionRating", &Selection::selectionRating},
    Field{"selectionPost", &Selection::selectionPost},
};

inline constexpr std::tuple lineCursorFields{
    Field{"race", &LineCursor::race},
    Field{"entry", &LineCursor::entry},
    Field{"line", &LineCursor::line},
    Field{"row", &LineCursor::row},
    Field{"lineNumberInRace", &LineCursor::lineNumberInRace},
    Field{"shadedRows", &LineCursor::shadedRows},
    Field{"wasFavourite", &LineCursor::wasFavourite},
    Field{"lineValue", &LineCursor::lineValue},
    Field{"lineSize", &LineCursor::lineSize},
    Field{"leaderFinal", &LineCursor::leaderFinal},
    Field{"horseFinal", &LineCursor::horseFinal},
    Field{"firstCall", &LineCursor::firstCall},
    Field{"secondCall", &LineCursor::secondCall},
    Field{"thirdCall", &LineCursor::thirdCall},
    Field{"firstPark", &LineCursor::firstPark},
    Field{"secondPark", &LineCursor::secondPark},
    Field{"thirdPark", &LineCursor::thirdPark},
    Field{"postNumber", &LineCursor::postNumber},
    Field{"scratchPost", &LineCursor::scratchPost},
    Field{"scratchAdjust", &LineCursor::scratchAdjust},
};

/// The scalars of the store that are no field of the card's own: they are cleared with it.
inline constexpr std::tuple furtherScalars{
    Field{"unreadFile", &RaceCard::unreadFile},
    Field{"starPercentage", &RaceCard::starPercentage},
};

/// The tables of the store.
inline constexpr std::tuple cardTables{
    Field{"RaceInfo", &RaceCard::raceInfo},         Field{"RaceEntry", &RaceCard::entry},
    Field{"PastLine", &RaceCard::pastLine},         Field{"DriverTable", &RaceCard::driverTable},
    Field{"TrainerTable", &RaceCard::trainerTable}, Field{"LineCells", &RaceCard::lineCells},
    Field{"rankEntry", &RaceCard::rankEntry},       Field{"SelectionSet", &RaceCard::selection},
    Field{"RaceOutcome", &RaceCard::raceOutcome},   Field{"PayoffRecord", &RaceCard::payoffRecord},
    Field{"PickPayoff", &RaceCard::pickPayoff},     Field{"PickLegs", &RaceCard::pickLegs},
    Field{"keyPicks", &RaceCard::keyPicks},         Field{"winHeat", &RaceCard::winHeat},
    Field{"placeHeat", &RaceCard::placeHeat},       Field{"heatPost", &RaceCard::heatPost},
    Field{"heatRating", &RaceCard::heatRating},
};

} // namespace quillon
