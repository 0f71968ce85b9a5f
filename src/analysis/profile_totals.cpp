#include "analysis/profile_totals.h"

#include "core/failure.h"
#include "core/formats.h"

#include <algorithm>

namespace quillon {
namespace {

Text winForm(double amount) { return formatted("#######.00", "@@@@@@@@@@", amount); }
Text superfectaForm(double amount) { return formatted("#####.00", "@@@@@@@@", amount); }

/// Win, place, show, exactas and trifectas: the bet of every race counts. The return on the bets is of the
/// figures as shown.
BetFigures plainFigures(const ProfileTotals& totals, std::size_t bet) {
    const double totalBet = totals.card.races * raceBet;
    const double won = returnOf(totals.card, bet);
    BetFigures shown{.totalBet = numberText(totalBet)};
    attempt([&] { shown.winAmount = winForm(totals.card.sums[bet]); });
    attempt([&] { shown.adjustedWin = winForm(won); });
    attempt([&] { shown.netProfit = winForm(won - totalBet); });
    attempt([&] {
        shown.roi =
            formatted("###.0%", "@@@@@@",
                      quotient(lenientNumber(shown.netProfit.value_or("")), lenientNumber(*shown.totalBet)));
    });
    if (const int winning = totals.winningCards[bet]; winning > 0)
        shown.winningCards = std::to_string(winning);
    return shown;
}

// The net profit is worked out from the figures as shown.
Text superfectaNet(const SuperfectaAccount& account, std::size_t bet) {
    const double won = account.sums[bet - firstSuperfecta] * profileBets[bet].factor;
    return superfectaForm(lenientNumber(winForm(won)) - account.races * raceBet);
}

Text superfectaRoi(const SuperfectaAccount& account, std::size_t bet) {
    constexpr int shownCharacters = 5;
    const double net = lenientNumber(superfectaNet(account, bet));
    Text roi{leftOf(numberText(quotient(net * 100, account.races * raceBet)), shownCharacters)};
    return roi += '%';
}

/// The superfectas' net profit leaves out what the last card read, the oldest, returned: the bets of a card
/// are counted before its returns.
BetFigures superfectaFigures(const ProfileTotals& totals, std::size_t bet) {
    BetFigures shown;
    attempt([&] { shown.winAmount = winForm(totals.card.sums[bet]); });
    attempt([&] { shown.adjustedWin = winForm(returnOf(totals.card, bet)); });
    attempt([&] { shown.totalBet = superfectaForm(totals.account.races * raceBet); });
    attempt([&] { shown.netProfit = superfectaNet(totals.account, bet); });
    if (totals.dividedAccount.races == 0)
        passOver(); // no card had a superfecta yet
    else
        attempt([&] { shown.roi = superfectaRoi(totals.dividedAccount, bet); });
    return shown;
}

} // namespace

void ProfileTotals::add(const ArchivedCard& next) {
    ++lines;
    card.races += next.races;
    card.superfectaRaces += next.superfectaRaces;
    std::copy(card.sums.begin() + firstSuperfecta, card.sums.end(), account.sums.begin());
    account.races = card.superfectaRaces;
    if (account.races != 0) dividedAccount = account;
    for (std::size_t at = 0; at < next.wins.size(); ++at) card.wins[at] += next.wins[at];
    for (std::size_t bet = 0; bet < next.sums.size(); ++bet) card.sums[bet] += next.sums[bet];
    for (std::size_t bet = 0; bet < firstSuperfecta; ++bet)
        winningCards[bet] += wonItsBets(next, bet) ? 1 : 0;
}

BetFigures betFigures(const ProfileTotals& totals, std::size_t bet) {
    return bet < firstSuperfecta ? plainFigures(totals, bet) : superfectaFigures(totals, bet);
}

std::array<Text, archivePlaces::wins.size() + 1> winPercentages(const ArchivedCard& card) {
    constexpr int shownCharacters = 4;
    std::array<Text, archivePlaces::wins.size() + 1> shown;
    double sum = 0;
    for (std::size_t at = 0; at < card.wins.size(); ++at) {
        if (card.races != 0)
            shown[at] = Text{leftOf(numberText(card.wins[at] * 100 / card.races), shownCharacters)} + "%";
        sum += lenientNumber(shown[at]);
    }
    shown.back() = numberText(sum) + "%";
    return shown;
}

} // namespace quillon
