#include "analysis/betting_profiles.h"

#include "analysis/analysis_view.h"
#include "analysis/archive_scan.h"
#include "analysis/profile_cards.h"
#include "core/failure.h"
#include "core/formats.h"
#include "screen/screen.h"
#include "tables/track_table.h"

#include <algorithm>
#include <array>
#include <memory>
#include <set>
#include <utility>

namespace quillon {
namespace {

constexpr TextView allTracks = "ALL";
constexpr TextView half = "1/2";
constexpr std::array<TextView, 4> otherSizes{"5/8", "7/8", "1.M", "1.Q"};

constexpr TextView exitLine = "EXIT";
constexpr TextView listRule = "---------------------";

struct RowLabel {
    int row;
    TextView text;
};

constexpr std::array rowLabels{
    RowLabel{profileRow::winAmount, "Win Amount"},
    RowLabel{profileRow::adjustedWin, "Adjusted Win"},
    RowLabel{profileRow::totalBet, "Total Bet"},
    RowLabel{profileRow::netProfit, "Net Profit"},
    RowLabel{profileRow::roi, "ROI"},
    RowLabel{profileRow::winningCards, "Winning Cards"},
};

constexpr std::array<TextView, 5> countHeads{"Races", "S1", "S2", "S3", "S4"};

FilePlace targetTracks() { return {Folder::working, "TargetTracks.txt"}; }

bool beginsWithLetter(TextView text) { return !text.empty() && text[0] >= 'A' && text[0] <= 'Z'; }

/// The courses of a filter: "1/2", or any text that begins with one of the other sizes.
TextView courseSizeIn(TextView filter) {
    constexpr int sizeLength = 3;
    const TextView size = leftOf(filter, sizeLength);
    const bool isSize =
        filter == half || std::find(otherSizes.begin(), otherSizes.end(), size) != otherSizes.end();
    return isSize ? size : TextView{};
}

/// Which lines of the archive a profile counts.
class TrackFilter {
public:
    explicit TrackFilter(TextView filter) : takesAll_(filter == allTracks) {
        if (takesAll_) return;
        if (beginsWithLetter(filter)) tracks_.emplace_back(filter);
        if (const TextView size = courseSizeIn(filter); !size.empty()) addTracksOf(size);
    }

    bool takes(TextView line) const {
        return takesAll_ || std::binary_search(tracks_.begin(), tracks_.end(), trackIn(line), std::less<>{});
    }

private:
    void addTracksOf(TextView size) {
        readTrackTable();
        for (const TrackRecord& track : trackTable().rows)
            if (track.courseSize == size) tracks_.push_back(track.trackKey);
        std::sort(tracks_.begin(), tracks_.end());
    }

    bool takesAll_;
    std::vector<Text> tracks_; ///< sorted
};

constexpr std::size_t superfectas = profileBets.size() - firstSuperfecta;

/// The superfectas' account when a card was read: it has the races of that card, but not yet its returns.
struct SuperfectaAccount {
    std::array<double, superfectas> sums{};
    double races = 0;
};

/// The running sums over the cards, in the order of the working copy.
struct Totals {
    int lines = 0;
    ArchivedCard card{}; ///< all cards as if they were one
    std::array<int, firstSuperfecta> winningCards{};
    SuperfectaAccount account{};
    SuperfectaAccount dividedAccount{}; ///< the last one that had a race to divide by

    void add(const ArchivedCard& next);
    void settleSuperfectas();
};

void Totals::add(const ArchivedCard& next) {
    ++lines;
    card.races += next.races;
    card.superfectaRaces += next.superfectaRaces;
    settleSuperfectas();
    for (std::size_t at = 0; at < next.wins.size(); ++at) card.wins[at] += next.wins[at];
    for (std::size_t bet = 0; bet < next.sums.size(); ++bet) card.sums[bet] += next.sums[bet];
    for (std::size_t bet = 0; bet < firstSuperfecta; ++bet)
        winningCards[bet] += wonItsBets(next, bet) ? 1 : 0;
}

void Totals::settleSuperfectas() {
    std::copy(card.sums.begin() + firstSuperfecta, card.sums.end(), account.sums.begin());
    account.races = card.superfectaRaces;
    if (account.races != 0) dividedAccount = account;
}

Text& cellText(int row, int column) { return screen.profile(row, column).text; }

double numberAt(int row, int column) { return lenientNumber(screen.profile.read(row, column).text); }

Text winForm(double amount) { return formatted("#######.00", "@@@@@@@@@@", amount); }
Text superfectaForm(double amount) { return formatted("#####.00", "@@@@@@@@", amount); }

void fillHeads() {
    int column = profileColumn::races;
    for (const TextView head : countHeads) cellText(profileRow::heads, column++) = head;
    for (const ProfileBet& bet : profileBets) cellText(profileRow::heads, bet.column) = bet.head;
    for (const RowLabel& label : rowLabels) cellText(label.row, profileColumn::card) = label.text;
}

void fillCounts(const Totals& totals, int cards) {
    cellText(profileRow::counts, profileColumn::card) = std::to_string(cards) + " Race Cards";
    if (totals.lines == 0) return;
    cellText(profileRow::counts, profileColumn::races) = aligned("@@@@", numberText(totals.card.races));
    int column = profileColumn::firstWins;
    for (const double wins : totals.card.wins)
        cellText(profileRow::counts, column++) = aligned(" @@@@", numberText(wins));
}

/// Win, place, show, exactas and trifectas: the bet of every race counts.
void fillBet(const Totals& totals, std::size_t bet) {
    const int column = profileBets[bet].column;
    const double sum = totals.card.sums[bet];
    const double won = sum * profileBets[bet].factor;
    const double totalBet = totals.card.races * raceBet;
    attempt([&] { cellText(profileRow::winAmount, column) = winForm(sum); });
    attempt([&] { cellText(profileRow::adjustedWin, column) = winForm(won); });
    cellText(profileRow::totalBet, column) = numberText(totalBet);
    attempt([&] { cellText(profileRow::netProfit, column) = winForm(won - totalBet); });
    attempt([&] {
        cellText(profileRow::roi, column) = formatted(
            "###.0%", "@@@@@@",
            quotient(numberAt(profileRow::netProfit, column), numberAt(profileRow::totalBet, column)));
    });
    if (const int winning = totals.winningCards[bet]; winning > 0)
        cellText(profileRow::winningCards, column) = std::to_string(winning);
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
void fillSuperfecta(const Totals& totals, std::size_t bet) {
    const int column = profileBets[bet].column;
    const double sum = totals.card.sums[bet];
    const double won = sum * profileBets[bet].factor;
    attempt([&] { cellText(profileRow::winAmount, column) = winForm(sum); });
    attempt([&] { cellText(profileRow::adjustedWin, column) = winForm(won); });
    attempt([&] { cellText(profileRow::totalBet, column) = superfectaForm(totals.account.races * raceBet); });
    attempt([&] { cellText(profileRow::netProfit, column) = superfectaNet(totals.account, bet); });
    if (totals.dividedAccount.races == 0) return passOver(); // no card had a superfecta yet
    attempt([&] { cellText(profileRow::roi, column) = superfectaRoi(totals.dividedAccount, bet); });
}

/// Wins of S1 to S4 in per cent of all races, and behind them the sum of the percentages as shown.
void fillPercentages(const Totals& totals) {
    constexpr int shownCharacters = 4;
    const double races = totals.card.races;
    double sum = 0;
    int column = profileColumn::firstWins;
    for (const double wins : totals.card.wins) {
        if (races != 0)
            cellText(profileRow::percentages, column) =
                Text{leftOf(numberText(wins * 100 / races), shownCharacters)} + "%";
        sum += numberAt(profileRow::percentages, column);
        ++column;
    }
    cellText(profileRow::percentages, column) = numberText(sum) + "%";
}

void fillTotals(const Totals& totals) {
    if (totals.lines == 0) return;
    for (std::size_t bet = 0; bet < firstSuperfecta; ++bet) fillBet(totals, bet);
    for (std::size_t bet = firstSuperfecta; bet < profileBets.size(); ++bet) fillSuperfecta(totals, bet);
}

void clearProfile() { screen.profile.layOut(profileRow::percentages + 1, profileColumns); }

void fillProfile(const Totals& totals, const std::shared_ptr<CardRows>& cards) {
    clearProfile();
    fillHeads();
    if (cards->emptyAhead()) fillCard(screen.profile.cellsOf(profileRow::percentages), "");
    fillCounts(totals, cards->count());
    fillTotals(totals);
    fillPercentages(totals);
    const auto make = [cards](int row, std::span<Cell> cells) { cards->make(row, cells); };
    screen.profile.showRows(profileRow::firstCard, {cards->count(), make});
}

/// Copies the lines that pass, and adds up their cards on the way. False when the user cancels: then nothing
/// is copied.
bool scanArchive(const TrackFilter& filter, Totals& totals, CardRows& cards) {
    LinesBackwards lines{archivePlace()};
    PreparedFile copy{workingCopy()};
    LongWork work{lines.size()};
    while (const auto line = lines.next()) {
        if (!work.goesOn(line->size() + crLf.size())) return false;
        if (!filter.takes(*line)) continue;
        copy.write(*line);
        copy.write(crLf);
        cards.add(*line);
        totals.add(archivedCardOf(*line));
    }
    copy.putInPlace();
    return true;
}

void profileOf(TextView filter) {
    screen.profileFilter = filter;
    Profile2();
}

/// The tracks of the archive in the order of their first cards. A hundred are kept in mind; one more is
/// written for each of its cards. Nothing when the user cancels.
std::optional<Text> scanTracks() {
    constexpr std::size_t mostSeen = 100;
    LinesForwards lines{archivePlace()};
    LongWork work{lines.size()};
    std::set<Text, std::less<>> seen;
    Text tracks;
    while (const auto line = lines.next()) {
        if (!work.goesOn(line->size() + crLf.size())) return std::nullopt;
        const TextView track = trackIn(*line);
        if (seen.contains(track)) continue;
        if (seen.size() < mostSeen) seen.emplace(track);
        tracks += track;
        tracks += crLf;
    }
    return tracks;
}

void fillTrackList() {
    const Text tracks = fileContent(targetTracks()).value_or("");
    screen.trackList.lines.clear();
    LineReader lines{tracks};
    while (const auto line = lines.next()) screen.trackList.lines.emplace_back(*line);
    screen.trackList.lines.emplace_back(listRule);
    screen.trackList.lines.emplace_back(exitLine);
    screen.trackList.visible = true;
}

} // namespace

void ALL() { profileOf(allTracks); }
void HALF() { profileOf(half); }
void FIVE() { profileOf("5/8"); }
void Seven() { profileOf("7/8"); }
void MILE() { profileOf("1.M"); }
void QUARTER() { profileOf("1.Q"); }

void Select() {
    const Step step{"Select"};
    fillTrackList();
    if (const auto tracks = scanTracks())
        writeFile(targetTracks(), *tracks);
    else
        screen.trackList = {};
}

void SelectTrack(const Text& line) { profileOf(trimmed(line)); }

void Profile2() {
    const Step step{"Profile2"};
    const Text filter = std::exchange(screen.profileFilter, {});
    if (filter == exitLine) screen.trackList.visible = false;
    if (filter == exitLine || filter.empty()) return;
    Totals totals;
    const auto cards = std::make_shared<CardRows>();
    if (!scanArchive(TrackFilter{upperCase(filter)}, totals, *cards)) return clearProfile();
    fillProfile(totals, cards);
    showAnalysisView(&Screen::profileVisible);
    screen.item(MenuItem::Print2).visible = true;
}

} // namespace quillon
