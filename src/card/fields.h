// One list of fields a record, by name: reset, show, and the differences that tests print are made from it.
#pragma once

#include "card/race_card.h"

#include <tuple>

namespace quillon {

template <class Record, class Value>
struct Field {
    const char* name;
    Value Record::*member;
};

template <class Record, class Value>
Field(const char*, Value Record::*) -> Field<Record, Value>;

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

inline constexpr std::tuple raceInfoFields{
    Field{"label", &RaceInfo::label},
    Field{"trackCode", &RaceInfo::trackCode},
    Field{"trackInfo", &RaceInfo::trackInfo},
    Field{"purse", &RaceInfo::purse},
    Field{"classText", &RaceInfo::classText},
    Field{"todaysCr", &RaceInfo::todaysCr},
    Field{"wagering", &RaceInfo::wagering},
    Field{"postTime", &RaceInfo::postTime},
    Field{"gait", &RaceInfo::gait},
    Field{"distance", &RaceInfo::distance},
    Field{"ratingNote", &RaceInfo::ratingNote},
    Field{"raceLabelDistance", &RaceInfo::raceLabelDistance},
};

inline constexpr std::tuple pastLineFields{
    Field{"DATE", &PastLine::DATE},
    Field{"TRACK", &PastLine::TRACK},
    Field{"COND", &PastLine::COND},
    Field{"PURSE", &PastLine::PURSE},
    Field{"CLASS", &PastLine::CLASS},
    Field{"CR", &PastLine::CR},
    Field{"DIST_MILES", &PastLine::DIST_MILES},
    Field{"LEAD_TM_1Q", &PastLine::LEAD_TM_1Q},
    Field{"LEAD_TM_2Q", &PastLine::LEAD_TM_2Q},
    Field{"LEAD_TM_3Q", &PastLine::LEAD_TM_3Q},
    Field{"LEAD_TM_FN", &PastLine::LEAD_TM_FN},
    Field{"POST", &PastLine::POST},
    Field{"CALL_1Q_BF", &PastLine::CALL_1Q_BF},
    Field{"CALL_1Q_PO", &PastLine::CALL_1Q_PO},
    Field{"CALL_1Q_PK", &PastLine::CALL_1Q_PK},
    Field{"CALL_1Q_AF", &PastLine::CALL_1Q_AF},
    Field{"CALL_2Q_BF", &PastLine::CALL_2Q_BF},
    Field{"CALL_2Q_PO", &PastLine::CALL_2Q_PO},
    Field{"CALL_2Q_PK", &PastLine::CALL_2Q_PK},
    Field{"CALL_2Q_AF", &PastLine::CALL_2Q_AF},
    Field{"CALL_3Q_BF", &PastLine::CALL_3Q_BF},
    Field{"CALL_3Q_PO", &PastLine::CALL_3Q_PO},
    Field{"CALL_3Q_PK", &PastLine::CALL_3Q_PK},
    Field{"CALL_3Q_AF", &PastLine::CALL_3Q_AF},
    Field{"CALL_ST_PO", &PastLine::CALL_ST_PO},
    Field{"CALL_FN_PO", &PastLine::CALL_FN_PO},
    Field{"HRSE_TM_4Q", &PastLine::HRSE_TM_4Q},
    Field{"HRSE_TM_FN", &PastLine::HRSE_TM_FN},
    Field{"driverName", &PastLine::driverName},
    Field{"rating", &PastLine::rating},
    Field{"lineNumber", &PastLine::lineNumber},
};

/// The fields of an entry but for `chosen`, whose own fields are those of a past line.
inline constexpr std::tuple raceEntryFields{
    Field{"horseName", &RaceEntry::horseName},
    Field{"programNumber", &RaceEntry::programNumber},
    Field{"morningOdds", &RaceEntry::morningOdds},
    Field{"postPosition", &RaceEntry::postPosition},
    Field{"driverNumber", &RaceEntry::driverNumber},
    Field{"driverName", &RaceEntry::driverName},
    Field{"driverUdr", &RaceEntry::driverUdr},
    Field{"chosenDriver", &RaceEntry::chosenDriver},
    Field{"trainerName", &RaceEntry::trainerName},
    Field{"favMark", &RaceEntry::favMark},
    Field{"linesInLastWindow", &RaceEntry::linesInLastWindow},
    Field{"linesInFiftyDays", &RaceEntry::linesInFiftyDays},
    Field{"chosenLineNumber", &RaceEntry::chosenLineNumber},
    Field{"rating", &RaceEntry::rating},
};

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

} // namespace quillon
