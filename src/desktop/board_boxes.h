// Where the boxes of the results board stand, and what a screen reader says of them.
#pragma once

#include "results/board.h"

#include <array>

namespace quillon {

/// Columns of the board: the runners at the left, the payoffs of the first three, the exotics, and the wide
/// boxes, with rules between them.
struct BoardColumn {
    enum Number {
        first, ///< S1 above the winner, and so on
        second,
        third,
        fourth,
        standing, ///< S1's margin above the bet mark
        afterRunners,
        toteCaptions,
        firstPays,
        secondPays,
        thirdPays,
        afterPayoffs,
        exoticCaptions,
        exoticPays,
        afterExotics,
        wide
    };
};

/// Rows of the board: the heads, and the payoffs below them.
struct BoardRow {
    enum Number { heads, win, place, show, count };
};

struct RunnerBox {
    int row;
    int column;
    const char* caption;
    const char* name;
};

struct PayoffBox {
    int box;
    int row;
    int column;
    const char* name;
};

/// A caption in a row of the board.
struct RowCaption {
    int row;
    int column;
    const char* text;
};

/// The head of a column of payoffs: who is paid there.
struct PayoffHead {
    int column;
    const char* text;
};

/// Where a dead heat's payoff stands, and what it is.
struct DeadHeatPlace {
    int row;
    int column;
    const char* name;
};

// clang-format off
inline constexpr std::array runnerBoxes{
    RunnerBox{BoardRow::win,  BoardColumn::first,  "S1",  "Selection S1"},
    RunnerBox{BoardRow::win,  BoardColumn::second, "S2",  "Selection S2"},
    RunnerBox{BoardRow::win,  BoardColumn::third,  "S3",  "Selection S3"},
    RunnerBox{BoardRow::win,  BoardColumn::fourth, "S4",  "Selection S4"},
    RunnerBox{BoardRow::show, BoardColumn::first,  "1st", "Finished first"},
    RunnerBox{BoardRow::show, BoardColumn::second, "2nd", "Finished second"},
    RunnerBox{BoardRow::show, BoardColumn::third,  "3rd", "Finished third"},
    RunnerBox{BoardRow::show, BoardColumn::fourth, "4th", "Finished fourth"},
};

inline constexpr std::array payoffBoxes{
    PayoffBox{PayoffCell::win,        BoardRow::win,   BoardColumn::firstPays,  "Win payoff of the first"},
    PayoffBox{PayoffCell::place1,     BoardRow::place, BoardColumn::firstPays,  "Place payoff of the first"},
    PayoffBox{PayoffCell::show1,      BoardRow::show,  BoardColumn::firstPays,  "Show payoff of the first"},
    PayoffBox{PayoffCell::place2,     BoardRow::place, BoardColumn::secondPays, "Place payoff of the second"},
    PayoffBox{PayoffCell::show2,      BoardRow::show,  BoardColumn::secondPays, "Show payoff of the second"},
    PayoffBox{PayoffCell::show3,      BoardRow::show,  BoardColumn::thirdPays,  "Show payoff of the third"},
    PayoffBox{PayoffCell::exacta,     BoardRow::win,   BoardColumn::exoticPays, "Exacta payoff"},
    PayoffBox{PayoffCell::trifecta,   BoardRow::place, BoardColumn::exoticPays, "Trifecta payoff"},
    PayoffBox{PayoffCell::superfecta, BoardRow::show,  BoardColumn::exoticPays, "Superfecta payoff"},
};

inline constexpr std::array rowCaptions{
    RowCaption{BoardRow::win,   BoardColumn::toteCaptions,   "Win"},
    RowCaption{BoardRow::win,   BoardColumn::exoticCaptions, "Exacta"},
    RowCaption{BoardRow::place, BoardColumn::toteCaptions,   "Place"},
    RowCaption{BoardRow::place, BoardColumn::exoticCaptions, "Trifecta"},
    RowCaption{BoardRow::show,  BoardColumn::toteCaptions,   "Show"},
    RowCaption{BoardRow::show,  BoardColumn::exoticCaptions, "Superfecta"},
};

inline constexpr std::array payoffHeads{
    PayoffHead{BoardColumn::firstPays,  "1st"},
    PayoffHead{BoardColumn::secondPays, "2nd"},
    PayoffHead{BoardColumn::thirdPays,  "3rd"},
    PayoffHead{BoardColumn::exoticPays, "4th"},
};

/// By the column of payoffs that the screen names; the first is for none. In a dead heat for first the second winner
/// has a Win payoff, in one for second the third horse a Place payoff: each stands in the column of its horse, where
/// a plain finish has no box.
inline constexpr std::array deadHeatPlaces{
    DeadHeatPlace{BoardRow::heads, BoardColumn::toteCaptions, "Dead heat payoff"},
    DeadHeatPlace{BoardRow::win,   BoardColumn::secondPays,   "Win payoff of the second winner"},
    DeadHeatPlace{BoardRow::place, BoardColumn::thirdPays,    "Place payoff of the other second"},
};
// clang-format on

} // namespace quillon
