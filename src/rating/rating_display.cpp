#include "rating/rating_display.h"

#include "card/race_card.h"
#include "core/failure.h"
#include "core/formats.h"
#include "screen/race_views.h"

#include <algorithm>

namespace quillon {
namespace {

struct SaddleCloth {
    int number;
    Colour cloth;
    Colour digits;
};

// clang-format off
constexpr std::array saddleCloths{
    SaddleCloth{ 1, {255,   0,   0}, {255, 255, 255}},
    SaddleCloth{ 2, {  0,   0, 255}, {255, 255, 255}},
    SaddleCloth{ 3, {255, 255, 255}, {  1,   1,   1}},
    SaddleCloth{ 4, {  0, 128,   0}, {255, 255, 255}},
    SaddleCloth{ 5, {  1,   1,   1}, {255, 255, 255}},
    SaddleCloth{ 6, {255, 255,   0}, {  0,   0,   0}},
    SaddleCloth{ 7, {255,   0, 255}, {  0,   0,   0}},
    SaddleCloth{ 8, {128, 128, 128}, {255, 255, 255}},
    SaddleCloth{ 9, {128,   0, 128}, {255, 255, 255}},
    SaddleCloth{10, {  0,   0, 255}, {255,   0,   0}},
    SaddleCloth{11, {  0, 255, 255}, {  0,   0,   0}},
    SaddleCloth{12, {128,   0,   0}, {255, 255, 255}},
};
// clang-format on

} // namespace

void colourSaddleCloth(Cell& programNumber) {
    programNumber.text = aligned("@@@", trimmed(programNumber.text));
    const double number = lenientNumber(programNumber.text);
    const auto cloth = std::find_if(saddleCloths.begin(), saddleCloths.end(),
                                    [&](const SaddleCloth& row) { return row.number == number; });
    const bool coloured = cloth != saddleCloths.end();
    programNumber.background = coloured ? std::optional{cloth->cloth} : std::nullopt;
    programNumber.foreground = coloured ? std::optional{cloth->digits} : std::nullopt;
    programNumber.bold = coloured;
}

void Colors() {
    const Step step{"Colors"};
    colourSaddleCloth(raceViewOf(cursor.race)(cursor.entry, RaceColumn::programNumber));
}

} // namespace quillon
