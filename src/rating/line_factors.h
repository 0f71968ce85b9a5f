// The factors of a past line: how one past race becomes one number, its line rating. The lower the better,
// and "99.9" is a line that can't be rated.
//
// Every factor works on the text `cursor.lineValue` and ends, with the text as it stands, where that is no
// number. Between the factors the figure is rounded to one decimal, halves away from zero.
#pragma once

#include "core/text.h"

namespace quillon {

/// Rates the line in `load.line` for the race, entry and line of `cursor`: runs all steps in their order,
/// stores the line in `card.pastLine` and its rating in column 38 of the race's data view, and writes the
/// diagnostic log where it is on. Reads `PP` of the horse table's row, and the calls and final times that the
/// load keeps in `cursor`. Resumes at failures.
void RateLine();

/// Reads `horseFinal` and `leaderFinal`; writes the first figure to `lineValue`, "99.9" for a line of more
/// than a mile, nothing for one without a last quarter or a finish. Stops at a failure, as all below do.
void LastQuarterCalc();

/// Reads the first three calls; credits each that found the horse on the lead.
void LeadHorse();

/// Reads the park marks and `lineSize`; credits each call parked out.
void ParkOuts();

/// Reads the park marks and the calls; credits each call parked out on the lead or second.
void ParkOutsWind();

/// Reads the park marks and `lineSize`; credits each call parked out two wide.
void ParkOutsDouble();

/// Credits a qualifier.
void QualifierCredit();

/// Reads the class rating of the line and of today's race; weighs what the horse did against their
/// difference. Qualifiers have none.
void ClassChange();

/// Credits every line of an entry that was the favourite in its latest race. Writes `wasFavourite`.
void FavouriteCredit();

/// Reads the line's finish; credits the first four.
void WPS();

// Places in the order of a line that are kept for factors to come; they do nothing.
void LengthOfStretch();
void LengthsGained();
void DriverRating();

/// The rating that a line's last figure closes with: its first five characters, "99.9" where they are worth
/// no more than 1.
Text closedRating(TextView lineValue);

/// What a class difference adds to a figure, negative for a credit: both class ratings and the finish that
/// the line had. A line without a class rating has one of 0 or less.
double classPoints(double todaysRating, double lineRating, double finish);

} // namespace quillon
