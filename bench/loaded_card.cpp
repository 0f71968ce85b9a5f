#include "loaded_card.h"

#include "app/start_up.h"
#include "card_generator.h"
#include "card_tables.h"
#include "core/journal.h"
#include "day/card_load.h"
#include "tracks.h"

#include <fstream>

namespace quillon::bench {

bool writeTables(int races) {
    samples::CardOptions options = samples::largestCard();
    if (races != largestRaces) {
        options.races = races;
        options.entries = {12, 12};
        options.lines = {5, 5};
    }
    std::ofstream{"TrackEditor.ini", std::ios::binary} << samples::trackEditorText();
    return samples::writeCard(samples::generateCard(options), ".");
}

bool loadCard(int races) {
    if (!writeTables(races)) return false;
    journal.clear();
    StartUp();
    Start();
    return true;
}

} // namespace quillon::bench
