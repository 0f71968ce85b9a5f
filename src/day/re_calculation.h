// A line that the user takes in place of the chosen one: it re-rates its entry, and the race is ranked again.
//
// All of it works on the race on show, and all of it resumes at failures.
#pragma once

namespace quillon {

/// Line button 1 to 13 of the past-performance view: takes the line in its row. Button 0 closes the view. The
/// ranking is strict, and the posts of the selections stay as they were.
void Command3(int button);

/// The numbers that the race edit button takes: those of the lines of the past-performance view, from the
/// first to the last. Before any was opened the last is below the first.
struct LineNumbers {
    double first = 0;
    double last = 0;
};
LineNumbers linesOnShow();

/// The race edit button: asks for the number of a line of the past-performance view and takes it.
void Command7();

/// Writes the row of the cursor's race and entry in the race view from row `cursor.row` of its data view.
void CommandThree();

/// A first ranking of the race on show, strict and without the fifth horse. The ranking that follows
/// overwrites it, but for what a stage that finds nobody leaves in place.
void RE_Calculate();

} // namespace quillon
