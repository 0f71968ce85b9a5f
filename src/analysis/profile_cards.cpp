#include "analysis/profile_cards.h"

#include "core/failure.h"
#include "core/formats.h"

namespace quillon {
namespace {

void markWins(std::span<Cell> cells, const ArchivedCard& card) {
    for (std::size_t bet = 0; bet < firstSuperfecta; ++bet)
        if (wonItsBets(card, bet)) cells[static_cast<std::size_t>(profileBets[bet].column)].bold = true;
}

// A superfecta's sum stands in its own form, but for the one of all four that won the card's bets: it stays
// as the archive has it.
Text superfectaCell(TextView line, const ArchivedCard& card, std::size_t bet) {
    constexpr double tickets = 4;
    Text sum{cellIn(line, archivePlaces::sums[bet])};
    const bool won = profileBets[bet].column == ProfileColumn::superfectaBox1234 &&
                     card.sums[bet] / tickets >= card.races * raceBet;
    if (!won) attempt([&] { sum = formatted("######.00", sum); });
    return sum;
}

} // namespace

void fillCard(std::span<Cell> cells, TextView line) {
    constexpr int shownRaces = 3;
    const ArchivedCard card = archivedCardOf(line);
    const auto text = [&](int column) -> Text& { return cells[static_cast<std::size_t>(column)].text; };
    text(ProfileColumn::card) = cellIn(line, archivePlaces::key);
    text(ProfileColumn::races) = cellIn(line, archivePlaces::races);
    int column = ProfileColumn::s1Wins;
    for (const Places& wins : archivePlaces::wins) text(column++) = cellIn(line, wins);
    for (std::size_t bet = 0; bet < firstSuperfecta; ++bet)
        text(profileBets[bet].column) = formatted("######.00", "@@@@@@@@@", returnOf(card, bet));
    for (std::size_t bet = firstSuperfecta; bet < profileBets.size(); ++bet)
        text(profileBets[bet].column) = superfectaCell(line, card, bet);
    text(ProfileColumn::superfectaRaces) = rightOf(line, shownRaces);
}

void CardRows::add(TextView line) {
    if (!line.empty())
        starts_.push_back(end_);
    else if (starts_.empty())
        emptyAhead_ = true;
    end_ += line.size() + crLf.size();
}

void CardRows::make(int row, std::span<Cell> cells) {
    attempt([&] { fill(static_cast<std::size_t>(row - ProfileRow::firstCard), cells); });
}

void CardRows::fill(std::size_t card, std::span<Cell> cells) {
    const std::uint64_t end = card + 1 < starts_.size() ? starts_[card + 1] : end_;
    LineReader lines{copy_.read(starts_[card], static_cast<std::size_t>(end - starts_[card]))};
    const TextView line = lines.next().value_or("");
    const bool writtenOver = lines.next().has_value();
    fillCard(cells, writtenOver ? "" : line);
    markWins(cells, archivedCardOf(line)); // what won stays marked
}

} // namespace quillon
