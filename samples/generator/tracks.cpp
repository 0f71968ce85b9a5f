#include "tracks.h"

#include <algorithm>
#include <array>
#include <cassert>
#include <iterator>

namespace samples {

namespace {

// clang-format off
// Century Downs' eleven sixteenths lie as near to 3/4 as to 5/8; it races as the smaller.
constexpr Track tracks[] = {
    {"BANG", "Bangor Raceway", "1/2", 0, 8, true},
    {"BDW", "Brandywine", "5/8", 608, 9, false},
    {"BMLP", "Balmoral Park", "1.M", 1320, 10, false},
    {"BR", "Buffalo Raceway", "1/2", 0, 8, true},
    {"BTVD", "Batavia Downs", "1/2", 0, 8, true},
    {"CALX", "Cal Expo", "1.M", 0, 10, false},
    {"CHTN", "Charlottetown Park", "1/2", 0, 8, true},
    {"CLTN", "Clinton Raceway", "1/2", 0, 8, true},
    {"CMILE", "Century Mile", "1.M", 0, 10, true},
    {"CNLDN", "Colonial Downs", "1.Q", 1290, 10, false},
    {"CNTYD", "Century Downs", "5/8", 0, 9, true},
    {"CRUN", "Cumberland Run", "5/8", 0, 9, true},
    {"CUMBM", "First Tracks Cumberland", "1/2", 0, 8, true},
    {"DD", "Dover Downs", "5/8", 0, 9, true},
    {"DELA", "Delaware County Fair", "1/2", 0, 8, true},
    {"DRES", "Dresden Raceway", "1/2", 0, 8, true},
    {"DTN", "Dayton Raceway", "5/8", 0, 9, true},
    {"DUQ", "Du Quoin State Fair", "1.M", 0, 10, false},
    {"FHLD", "Freehold Raceway", "1/2", 0, 8, false},
    {"FLMD", "Flamboro Downs", "1/2", 0, 8, true},
    {"FRD", "Fraser Downs", "7/8", 0, 9, false},
    {"FRES", "Big Fresno Fair", "1.M", 0, 10, false},
    {"GAT", "Hippodrome Aylmer", "5/8", 0, 9, false},
    {"GEOD", "Georgian Downs", "5/8", 0, 9, true},
    {"GOSH", "Goshen Historic Track", "1/2", 0, 0, true},
    {"GRRV", "Grand River Raceway", "5/8", 0, 9, true},
    {"H3R", "Trois-Rivieres", "1/2", 0, 8, true},
    {"HAN", "Hanover Raceway", "1/2", 0, 8, true},
    {"HAR", "Harrington Raceway", "1/2", 0, 8, true},
    {"HAW", "Hawthorne Race Course", "1.M", 1320, 10, true},
    {"HIAW", "Hiawatha Horse Park", "5/8", 0, 9, true},
    {"HOP", "Harrah's Hoosier Park", "7/8", 0, 10, true},
    {"HP", "Hazel Park", "5/8", 0, 9, false},
    {"INDD", "Indiana Downs", "1.M", 0, 10, false},
    {"INDSF", "Indiana State Fair", "1.M", 0, 10, false},
    {"INVR", "Inverness Raceway", "1/2", 0, 8, true},
    {"KD", "Kawartha Downs", "5/8", 0, 9, true},
    {"LEB", "Lebanon Raceway", "1/2", 0, 8, false},
    {"LEX", "The Red Mile", "1.M", 0, 10, true},
    {"LMGT", "Leamington Raceway", "1/2", 0, 8, true},
    {"LON", "Western Fair London", "1/2", 0, 8, true},
    {"LOOPW", "The Loop Winnipeg", "1/2", 0, 0, true},
    {"M1", "Meadowlands", "1.M", 990, 10, true},
    {"MAY", "Maywood Park", "1/2", 0, 8, false},
    {"MEA", "The Meadows", "5/8", 0, 9, true},
    {"MR", "Monticello Raceway", "1/2", 0, 8, true},
    {"MTL", "Hippodrome de Montreal", "5/8", 0, 9, false},
    {"MVR", "Miami Valley Raceway", "5/8", 0, 9, true},
    {"NFLD", "Northfield Park", "1/2", 0, 8, true},
    {"NOR", "Northville Downs", "1/2", 0, 8, false},
    {"NP", "Northlands Park", "5/8", 0, 9, false},
    {"NRTHS", "Northside Downs", "1/2", 0, 8, true},
    {"OAKGR", "Oak Grove", "5/8", 0, 9, true},
    {"OD", "Ocean Downs", "1/2", 0, 8, true},
    {"PCD", "Pocono Downs", "5/8", 0, 9, true},
    {"PHL", "Harrah's Philadelphia", "5/8", 0, 9, true},
    {"PPK", "Pompano Park", "5/8", 0, 9, false},
    {"PRC", "Plainridge Park", "5/8", 0, 9, true},
    {"PRMD", "Prairie Meadows", "1.M", 0, 10, false},
    {"RCR", "Rosecroft Raceway", "5/8", 0, 9, true},
    {"RIDC", "Rideau Carleton Raceway", "5/8", 0, 9, false},
    {"RP", "Raceway Park Toledo", "5/8", 0, 9, false},
    {"RUNAC", "Running Aces", "5/8", 0, 9, true},
    {"SCD", "Scioto Downs", "5/8", 0, 9, true},
    {"SCRD", "Scarborough Downs", "1/2", 0, 8, false},
    {"SHEND", "Shenandoah Downs", "1/2", 0, 0, true},
    {"SMRS", "Summerside Raceway", "1/2", 0, 8, true},
    {"SPR", "Illinois State Fair", "1.M", 0, 10, false},
    {"SPTC", "Sports Creek", "1/2", 0, 8, false},
    {"STGA", "Saratoga Harness", "1/2", 0, 8, true},
    {"TGDN", "Tioga Downs", "5/8", 0, 9, true},
    {"TRK2", "The Track on 2", "1.M", 0, 10, true},
    {"TRURO", "Truro Raceway", "1/2", 0, 8, true},
    {"VD", "Vernon Downs", "7/8", 0, 0, true},
    {"WBSB", "Woodbine", "7/8", 0, 10, false},
    {"WBSBM", "Woodbine Mohawk Park", "7/8", 0, 10, true},
    {"WDSTC", "Woodstock Connell Park", "1/2", 0, 0, true},
    {"WIND", "Windsor Raceway", "5/8", 0, 9, false},
    {"YR", "Yonkers Raceway", "1/2", 660, 8, true},
};
// clang-format on

// What a course of each size usually has, for tracks whose own figures are not known. The par is the seconds
// over a minute of an ordinary mile.
struct SizeFigures {
    std::string_view size;
    int stretch;
    int starters;
    std::string_view par;
};
constexpr std::array sizeFigures{
    SizeFigures{"1/2", 440, 8, "57.2"},  //
    SizeFigures{"5/8", 550, 9, "55.0"},  //
    SizeFigures{"7/8", 880, 10, "53.6"}, //
    SizeFigures{"1.M", 990, 10, "52.8"}, //
    SizeFigures{"1.Q", 1290, 10, "52.4"},
};

const SizeFigures& figuresOf(std::string_view size) {
    const auto* found = std::ranges::find(sizeFigures, size, &SizeFigures::size);
    assert(found != sizeFigures.end());
    return *found;
}

// Columns of a row, from 1, and where a right-aligned field ends.
constexpr std::size_t keyColumn = 1;
constexpr std::size_t nameColumn = 13;
constexpr std::size_t sizeColumn = 37;
constexpr std::size_t stretchEnd = 45;
constexpr std::size_t unitColumn = 46;
constexpr std::size_t parColumn = 50;
constexpr std::size_t rowEnd = 65; // the post limit ends the row

void put(std::string& row, std::size_t column, std::string_view text) {
    row.replace(column - 1, text.size(), text);
}

void putRight(std::string& row, std::size_t lastColumn, int value) {
    const std::string text = std::to_string(value);
    put(row, lastColumn + 1 - text.size(), text);
}

std::string editorRow(const Track& track) {
    const SizeFigures& usual = figuresOf(track.size);
    std::string row(rowEnd, ' ');
    put(row, keyColumn, track.key);
    put(row, nameColumn, track.name);
    put(row, sizeColumn, track.size);
    putRight(row, stretchEnd, track.stretch > 0 ? track.stretch : usual.stretch);
    put(row, unitColumn, "'"); // feet
    put(row, parColumn, usual.par);
    putRight(row, rowEnd, track.starters > 0 ? track.starters : usual.starters);
    return row;
}

} // namespace

std::span<const Track> allTracks() { return tracks; }

const Track& trackOf(std::string_view key) {
    const auto* found = std::ranges::find(tracks, key, &Track::key);
    assert(found != std::end(tracks));
    return *found;
}

std::string_view vendorSize(const Track& track) {
    if (track.size == "1.M") return "1";
    if (track.size == "1.Q") return "11/4";
    return track.size;
}

std::string trackEditorText() {
    std::string text;
    for (const Track& track : tracks) text += editorRow(track) + "\r\n";
    return text;
}

} // namespace samples
