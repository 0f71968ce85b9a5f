#include "analysis/betting_profiles.h"

#include "analysis/analysis_view.h"
#include "analysis/archive_scan.h"
#include "analysis/profile_cards.h"
#include "analysis/profile_totals.h"
#include "core/failure.h"
#include "core/formats.h"
#include "screen/screen.h"
#include "tables/load_state.h"

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

/// A row of the totals: its label and the figure that it shows of each bet.
struct TotalRow {
    ProfileRow::Number row;
    TextView label;
    std::optional<Text> BetFigures::*figure;
};

constexpr std::array totalRows{
    TotalRow{ProfileRow::winAmount, "Win Amount", &BetFigures::winAmount},
    TotalRow{ProfileRow::adjustedWin, "Adjusted Win", &BetFigures::adjustedWin},
    TotalRow{ProfileRow::totalBet, "Total Bet", &BetFigures::totalBet},
    TotalRow{ProfileRow::netProfit, "Net Profit", &BetFigures::netProfit},
    TotalRow{ProfileRow::roi, "ROI", &BetFigures::roi},
    TotalRow{ProfileRow::winningCards, "Winning Cards", &BetFigures::winningCards},
};

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
        for (const TrackRecord& track : load.tracks.rows)
            if (track.courseSize == size) tracks_.push_back(track.trackKey);
        std::sort(tracks_.begin(), tracks_.end());
    }

    bool takesAll_;
    std::vector<Text> tracks_; ///< sorted
};

Text& cellText(int row, int column) { return screen.profile(row, column).text; }

void fillCounts(const ProfileTotals& totals, int cards) {
    cellText(ProfileRow::counts, ProfileColumn::card) = std::to_string(cards) + " Race Cards";
    if (totals.lines == 0) return;
    cellText(ProfileRow::counts, ProfileColumn::races) = aligned("@@@@", numberText(totals.card.races));
    int column = ProfileColumn::s1Wins;
    for (const double wins : totals.card.wins)
        cellText(ProfileRow::counts, column++) = aligned(" @@@@", numberText(wins));
}

void fillBets(const ProfileTotals& totals) {
    for (std::size_t bet = 0; bet < profileBets.size(); ++bet) {
        const BetFigures figures = betFigures(totals, bet);
        for (const TotalRow& row : totalRows)
            if (const auto& figure = figures.*row.figure)
                cellText(row.row, profileBets[bet].column) = *figure;
    }
}

void clearProfile() { screen.profile.layOut(ProfileRow::percentages + 1, ProfileColumn::count); }

void fillProfile(const ProfileTotals& totals, const std::shared_ptr<CardRows>& cards) {
    layOut(screen.profile, ProfileRow::percentages, profileColumns());
    for (const TotalRow& row : totalRows) cellText(row.row, ProfileColumn::card) = row.label;
    if (cards->emptyAhead()) fillCard(screen.profile.cellsOf(ProfileRow::percentages), "");
    fillCounts(totals, cards->count());
    if (totals.lines > 0) fillBets(totals);
    int column = ProfileColumn::s1Wins;
    for (const Text& percentage : winPercentages(totals.card))
        cellText(ProfileRow::percentages, column++) = percentage;
    const auto make = [cards](int row, std::span<Cell> cells) { cards->make(row, cells); };
    screen.profile.showRows(ProfileRow::firstCard, {cards->count(), make});
}

/// Copies the lines that pass, and adds up their cards on the way. False when the user cancels: then nothing
/// is copied.
bool scanArchive(const TrackFilter& filter, ProfileTotals& totals, CardRows& cards) {
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
    ProfileTotals totals;
    const auto cards = std::make_shared<CardRows>();
    if (!scanArchive(TrackFilter{upperCase(filter)}, totals, *cards)) return clearProfile();
    fillProfile(totals, cards);
    screen.profileTracks = upperCase(filter);
    showAnalysisView(&Screen::profileVisible);
    screen.item(CommandId::Print2).visible = true;
}

} // namespace quillon
