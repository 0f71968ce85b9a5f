#include "console/show_worth.h"

#include "analysis/card_tickets.h"
#include "analysis/race_worth.h"
#include "analysis/saved_races.h"
#include "analysis/ticket_words.h"
#include "analysis/worth_texts.h"
#include "console/words.h"
#include "results/board.h"

namespace quillon {
namespace {

constexpr TextView nothingKnown = "-"; // of a starter without a rating

// Cuts the last word off a text.
TextView takeLastWord(TextView& text) {
    const auto before = text.rfind(blank);
    const TextView word = before == TextView::npos ? text : text.substr(before + 1);
    text = before == TextView::npos ? TextView{} : text.substr(0, before);
    return word;
}

Text lineOf(const WorthRow& row) {
    const Text chance = row.chance ? percentText(*row.chance) : Text{nothingKnown};
    const Text fair = row.chance ? oddsText(fairOdds(*row.chance)) : Text{nothingKnown};
    return row.programNumber + "\t" + chance + "\t" + fair + "\t" + row.morningLine;
}

} // namespace

void showFair(std::optional<TextView> words, Transcript& transcript) {
    const auto race = wholeNumber(words.value_or(TextView{}));
    if (!race) return transcript.line("usage: show fair R");
    SavedFit saved;
    const Fit& fit = saved.fit();
    if (!fit.isEnough()) return transcript.line("too few races: " + std::to_string(fit.races));
    transcript.line("races " + std::to_string(fit.races));
    if (!fit.scale) return transcript.line("no scale");
    transcript.line("scale " + scaleText(fit.scale->perPoint) + " +- " + scaleText(fit.scale->error));
    for (const WorthRow& row : worthOf(*race, fit.scale->perPoint)) transcript.line(lineOf(row));
}

void showTicket(std::optional<TextView> words, Transcript& transcript) {
    TextView type = words.value_or(TextView{});
    const TextView stake = takeLastWord(type);
    const TextView numbers = takeLastWord(type);
    const auto pool = poolIn(type);
    const auto fields = pool ? fieldsOf(*pool, raceOnShow()) : std::vector<Field>{};
    const auto ticket = ticketIn(type, numbers, stake, fields);
    if (!ticket) return transcript.line("usage: show ticket TYPE LEGS STAKE");
    const TicketCost cost = costOf(*ticket, fields);
    transcript.line(std::to_string(cost.combinations) + "\t" + moneyText(cost.cents));
    for (const DroppedNumber& dropped : cost.scratched)
        transcript.line("scratched\t" + std::to_string(dropped.set + 1) + "\t" + dropped.programNumber);
}

} // namespace quillon
