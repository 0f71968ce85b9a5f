#include "rating/line_value.h"

#include "card/race_card.h"

namespace quillon {

bool addToLineValue(double points) {
    const auto figure = numberIn(cursor.lineValue);
    if (!figure) {
        passOver();
        return false;
    }
    cursor.lineValue = numberText(*figure + points);
    return true;
}

} // namespace quillon
