// The results text of the card: where it lies, whether it is of this card, and how its figures are cut.
//
// The user pastes the text from a results page; nothing about it can be relied on. All helpers here take any
// text of any length.
#pragma once

#include "core/text.h"

#include <optional>

namespace quillon {

/// The card's results file, ".pmr" in the results folder; nothing where there is none or no card is open.
std::optional<Text> resultsText();

/// What a results text is laid out as, by the lines that each pass looks for.
enum class ResultsLayout {
    unknown, ///< neither, or marks of both
    columns, ///< a heading "PRG" above three finishers
    words,   ///< lines that begin "1st", "2nd" ...
};
ResultsLayout layoutOf(TextView content);

/// The track's key as the track table has it, looked up by the card's name up to its first "_": the first row
/// that begins with that track gives its key column. A short code may so find a longer one's row. Empty
/// without such a row.
Text resultsTrackKey();

/// The day that a results text is of, as it was cut out of it.
struct ResultsDate {
    Text year{};
    Text month{};
    Text day{};

    bool empty() const { return year.empty() && month.empty() && day.empty(); }
};

/// False when track and day of the text aren't the card's, and tells the user. A text without a day passes.
bool isOfThisCard(TextView trackKey, const ResultsDate& date);

/// A payoff without its first comma: what stands before it and the six characters after it. Nothing for
/// a payoff without a comma.
std::optional<Text> withoutComma(TextView payoff);

/// The payoff of an exotic wager at the end of a line: of its last ten characters those after the first "$".
TextView exoticPayoff(TextView line);

/// `count` characters after the "$" at `dollarPlace`, without blanks at their end; the text as it stands
/// where there is no "$" (place 0).
TextView afterDollar(TextView text, int dollarPlace, int count);

/// A multi-race wager's pool: from `place` to the first "(" or, without one, to the first "paid"; empty where
/// the line has neither.
TextView poolFrom(TextView line, int place);

/// The place of the first digit from 1 to 9, where a finisher's payoffs begin; 0 without one.
int figurePlace(TextView text);

/// A finisher's line from the first payoff on: characters are dropped from the front until a blank stands
/// there with no letter after it. A figure of three digits that stands first is dropped with the name.
TextView afterName(TextView text);

/// The same for the lines of the second and third: small letters alone are dropped.
TextView afterSmallLetters(TextView text);

} // namespace quillon
