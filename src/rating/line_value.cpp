#include "rating/line_value.h"

#include "card/race_card.h"
#include "rating/line_road.h"
#include "tables/load_state.h"

namespace quillon {

bool addToLineValue(double points, TextView what) {
    const auto figure = numberIn(cursor.lineValue);
    if (!figure) {
        passOver();
        return false;
    }
    cursor.lineValue = numberText(*figure + points);
    noteTerm(points, what);
    return true;
}

void noteTerm(double figure, TextView what) {
    if (roadRecorder) roadRecorder->noteTerm({figure, what});
}

bool isQualifier() { return contains(load.line.CLASS, "QU"); }

} // namespace quillon
