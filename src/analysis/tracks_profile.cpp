#include "analysis/tracks_profile.h"

#include "analysis/analysis_view.h"
#include "analysis/archive_scan.h"
#include "card/race_card.h"
#include "core/failure.h"
#include "core/formats.h"
#include "reports/report_writer.h"
#include "screen/screen.h"
#include "screen/view_columns.h"
#include "tables/load_state.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <map>

namespace quillon {
namespace {

constexpr std::size_t mostTracks = 100;
constexpr std::array<TextView, 6> sizes{"1/2", "5/8", "3/4", "7/8", "1.M", "1.Q"};
constexpr TextView olderMile = "1";
constexpr TextView olderMileAndAQuarter = "1 1"; // "1 1/4" in the three places of a size

// The last two places of the archive's fields are all that is read.
constexpr Places racesPlaces{16, 2};
constexpr Places winsPlaces{21, 2};

struct Sums {
    Integer races = 0;
    Integer wins = 0;
};

struct TrackSums {
    Text code;
    Text size;
    Sums sums{};
};

struct Profile {
    std::vector<TrackSums> tracks{};
    std::map<Text, std::vector<std::size_t>, std::less<>> byCode{}; ///< a track may be listed more than once
    std::array<Sums, sizes.size()> bySize{};
    Text lineSize{}; ///< of the line that was rated last
};

// A sum beyond 16 bits stays as it was.
void addTo(Integer& sum, double number) {
    const double total = sum + number;
    if (std::fabs(std::nearbyint(total)) <= std::numeric_limits<Integer>::max())
        sum = toInteger(total);
    else
        passOver();
}

void addTo(Sums& sums, double races, double wins) {
    addTo(sums.races, races);
    addTo(sums.wins, wins);
}

/// Whether a size's row counts a track. The mile counts every track while the line that was rated last was
/// run on a mile of the older form.
bool counts(TextView size, TextView courseSize, TextView lineSize) {
    if (size == courseSize) return true;
    if (size == "1.M") return lineSize == olderMile;
    return size == "1.Q" && courseSize == olderMileAndAQuarter;
}

Profile emptyProfile() {
    Profile profile{.lineSize = cursor.lineSize};
    for (const TrackRecord& track : load.tracks.rows) {
        if (profile.tracks.size() == mostTracks) break;
        profile.byCode[track.trackKey].push_back(profile.tracks.size());
        profile.tracks.push_back({track.trackKey, track.courseSize});
    }
    return profile;
}

void addCard(Profile& profile, TextView line) {
    const auto listed = profile.byCode.find(upperCase(trackIn(line)));
    if (listed == profile.byCode.end()) return;
    const double races = lenientNumber(cellIn(line, racesPlaces));
    const double wins = lenientNumber(cellIn(line, winsPlaces));
    for (const std::size_t index : listed->second) {
        TrackSums& track = profile.tracks[index];
        addTo(track.sums, races, wins);
        for (std::size_t size = 0; size < sizes.size(); ++size)
            if (counts(sizes[size], track.size, profile.lineSize)) addTo(profile.bySize[size], races, wins);
    }
}

void addCards(Profile& profile, bool& cancelled) {
    LinesForwards lines{archivePlace()};
    LongWork work{lines.size()};
    while (const auto line = lines.next()) {
        cancelled = !work.goesOn(line->size() + crLf.size());
        if (cancelled) return;
        addCard(profile, *line);
    }
}

void fillCells(int row, int column, const std::array<Text, 4>& texts) {
    for (const Text& text : texts) screen.tracks(row, column++).text = text;
}

void fillTracks(const Profile& profile) {
    int row = 0;
    for (const auto& [code, size, sums] : profile.tracks)
        if (sums.races > 0)
            fillCells(++row, TrackColumn::track,
                      {code, numberText(sums.races), numberText(sums.wins),
                       formatted("##.0%", quotient(sums.wins, sums.races))});
}

/// The cells of a size: races, wins, percentage; all empty without a race.
std::array<Text, 4> sizeCells(TextView size, const Sums& sums) {
    if (sums.races == 0) return {Text{size}};
    return {Text{size}, aligned("@@@@@", numberText(sums.races)), aligned("@@@@@", numberText(sums.wins)),
            formatted("##.0", "@@@@%", quotient(sums.wins, sums.races) * 100)};
}

void fillSizes(const Profile& profile, ReportWriter& report) {
    for (std::size_t size = 0; size < sizes.size(); ++size) {
        const auto row = sizeCells(sizes[size], profile.bySize[size]);
        fillCells(static_cast<int>(size) + 1, TrackColumn::size, row);
        const auto& [name, races, wins, percentage] = row;
        report.line("  {}  @@@@@  @@@@@    {}", name, races, wins, percentage);
    }
    report.line("END");
}

} // namespace

void Track_Profile() {
    const Step step{"Track_Profile"};
    readTrackTable();
    Profile profile = emptyProfile();
    bool cancelled = false;
    attempt([&] { addCards(profile, cancelled); });
    if (cancelled) return screen.tracks.clearAll();
    layOut(screen.tracks, static_cast<int>(std::max(profile.tracks.size(), sizes.size())), trackColumns());
    fillTracks(profile);
    ReportWriter report;
    fillSizes(profile, report);
    attempt([&] { writeFile({Folder::working, "Wins by Track.txt"}, report.content()); });
    showAnalysisView(&Screen::tracksVisible);
}

} // namespace quillon
