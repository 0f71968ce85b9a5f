// The profiles, over archives of up to a million cards.
#include "analysis/betting_profiles.h"
#include "analysis/profile_report.h"
#include "analysis/stars_profile.h"
#include "analysis/tracks_profile.h"
#include "app/start_up.h"
#include "core/files.h"
#include "core/formats.h"
#include "core/journal.h"
#include "working_folder.h"

#include <benchmark/benchmark.h>

#include <array>
#include <random>

namespace quillon::bench {
namespace {

constexpr std::array<TextView, 8> tracks{"  M1", " YR", "MVR", "PHL", "LEX", "FLMD", "WDB", "HAW"};

constexpr TextView trackEditor = "M1          Meadowlands             1.M  990'    50.0          10\r\n"
                                 "YR          Yonkers Raceway         1/2  440'    55.0           8\r\n"
                                 "MVR         Miami Valley Raceway    5/8  650'    52.0           9\r\n"
                                 "PHL         Chester                 5/8  500'    52.0           9\r\n"
                                 "LEX         The Red Mile            1.M  1050'   50.0          10\r\n"
                                 "FLMD        Flamboro Downs          1/2  480'    55.0           8\r\n"
                                 "WDB         Mohawk Park             7/8  900'    51.0          10\r\n"
                                 "HAW         Hawthorne               1.M  1320'   50.0          10\r\n";

// The figures of invented cards, the same in every run.
class Figures {
public:
    int upTo(int most) { return static_cast<int>(engine_() % static_cast<unsigned>(most + 1)); }
    double payoffs() { return upTo(2) == 0 ? 0 : upTo(20000) / 100.0; }

private:
    std::mt19937 engine_{20260314};
};

void addCard(Text& archive, Figures& figures, int card) {
    const TextView track = trimmed(tracks[static_cast<std::size_t>(figures.upTo(7))]);
    const Text date = "_20" + formatted("00", 1 + card % 25) + formatted("00", 1 + card % 12) +
                      formatted("00", 1 + card % 28);
    archive += rightAligned(track, 5) + date;
    archive += aligned("@@@", std::to_string(8 + figures.upTo(6)));
    for (int selection = 0; selection < 4; ++selection)
        archive += aligned("@@@@@", std::to_string(figures.upTo(5)));
    for (int bet = 0; bet < 11; ++bet) archive += formatted("####.#0", "@@@@@@@@@", figures.payoffs());
    for (int bet = 0; bet < 3; ++bet) archive += formatted("####.#0", "@@@@@@@@@@", figures.payoffs());
    archive += aligned("@@@", std::to_string(figures.upTo(8)));
    archive += crLf;
}

void addStars(Text& stars, Figures& figures, int card) {
    stars += "MVR_20260314\r\n";
    for (int race = 1; race <= 10; ++race) {
        stars += Text(15, blank) + aligned("@@@", formatted("## ", race));
        stars += "     " + aligned("@@@@@@", formatted(" ##.# ", figures.upTo(90) / 10.0));
        stars += "     2.50   5/2      12.00";
        if ((card + race) % 3 == 0) stars += "      42.00  1";
        stars += crLf;
    }
}

// An archive of so many cards, with the tracks' table beside it.
void makeArchive(std::int64_t cards) {
    Figures figures;
    Text archive;
    for (int card = 0; card < cards; ++card) addCard(archive, figures, card);
    writeFile({Folder::working, "HRA.ini"}, archive);
    writeFile({Folder::working, "TrackEditor.ini"}, trackEditor);
}

void runOverArchive(benchmark::State& state, void (*step)()) {
    const WorkingFolder folder;
    makeArchive(state.range(0));
    StartUp();
    journal.clear();
    for ([[maybe_unused]] auto run : state) step();
    state.counters["faults"] = static_cast<double>(journal.count());
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

void ProfileOfAllTracks(benchmark::State& state) { runOverArchive(state, ALL); }
void ProfileOfHalfMileTracks(benchmark::State& state) { runOverArchive(state, HALF); }
void ListOfTracks(benchmark::State& state) { runOverArchive(state, Select); }
void TracksProfile(benchmark::State& state) { runOverArchive(state, Track_Profile); }

void ReportOfAProfile(benchmark::State& state) {
    const WorkingFolder folder;
    makeArchive(state.range(0));
    StartUp();
    ALL();
    for ([[maybe_unused]] auto run : state) Print2();
}

void StarsProfile(benchmark::State& state) {
    const WorkingFolder folder;
    Figures figures;
    Text stars;
    for (int card = 0; card < state.range(0); ++card) addStars(stars, figures, card);
    writeFile({Folder::working, "Stars5.ini"}, stars);
    StartUp();
    for ([[maybe_unused]] auto run : state) {
        Star();
        MarginChoice("ALL Margins");
        OddsChoice("ALL Odds");
        MaxOddsChoice("ALL Odds");
    }
}

constexpr std::int64_t few = 10000;
constexpr std::int64_t many = 100000;
constexpr std::int64_t most = 1000000;

BENCHMARK(ProfileOfAllTracks)->Arg(few)->Arg(many)->Arg(most)->Unit(benchmark::kMillisecond);
BENCHMARK(ProfileOfHalfMileTracks)->Arg(few)->Arg(many)->Arg(most)->Unit(benchmark::kMillisecond);
BENCHMARK(ListOfTracks)->Arg(few)->Arg(many)->Arg(most)->Unit(benchmark::kMillisecond);
BENCHMARK(TracksProfile)->Arg(few)->Arg(many)->Arg(most)->Unit(benchmark::kMillisecond);
BENCHMARK(ReportOfAProfile)->Arg(few)->Arg(many)->Unit(benchmark::kMillisecond);
BENCHMARK(StarsProfile)->Arg(few)->Arg(many)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace quillon::bench
