#pragma once

#include <array>
#include <chrono>
#include <string>
#include <vector>

namespace samples {

using Day = std::chrono::sys_days;

// A time or a span of time in fifths of a second, the unit of harness racing; a length is one fifth.
using Fifths = int;
inline constexpr Fifths noTime = 0;     // the vendor has none and says so
inline constexpr Fifths blankTime = -1; // the cell is empty

inline constexpr int mile = 16;         // distances are in sixteenths of a mile
inline constexpr int alsoEligible = 99; // post of an entry that has none
inline constexpr int noOdds = -1;
inline constexpr int noClassRating = 0;
inline constexpr int noPerson = 0; // people are counted from 1

// Where a horse stood at one point of a race.
struct Call {
    int position = 0;     // 0: not known
    int behind = 0;       // quarters of a length behind the leader
    std::string before{}; // marks in front of the position: x broke stride, i interference
    std::string park{};   // one or two rings: raced outside, three wide
    std::string after{};  // marks after the position
};
enum CallPlace : std::size_t { atQuarter, atHalf, atThreeQuarters, atStretch, atFinish, callCount };

struct PastLine {
    Day date{};
    int raceOfDay = 0;
    std::string track{};
    std::string trackSize{}; // as the vendor writes it
    std::string condition{};
    int temperature = 0; // Fahrenheit
    int purse = 0;       // dollars; 0 in a qualifier
    std::string className{};
    int classRating = noClassRating;
    int distance = mile;
    int starters = 0;
    std::array<Fifths, 4> leader{}; // at the quarter, half, three-quarters and finish
    int post = 0;                   // 0: the line has no calls
    std::array<Call, callCount> calls{};
    bool favourite = false;
    int odds = noOdds; // hundredths to one
    Fifths lastQuarter = noTime;
    Fifths finalTime = noTime;
    int driver = noPerson;
    std::string winner{};
};

struct Entry {
    int horse = 0; // counted through the card
    std::string name{};
    std::string program{};
    int post = 0; // or alsoEligible
    std::string morningLine{};
    int driver = noPerson;
    int trainer = noPerson;
    int age = 0;
    std::string sire{}, dam{};
    int quality = 0;               // class points above or below the race's own; the tables don't show it
    std::vector<PastLine> lines{}; // most recent first
};

struct Race {
    int number = 0;
    std::string cardLetter{};
    int purse = 0; // dollars
    std::string conditions{};
    int classRating = 0;
    std::string wagers{};
    std::string postTime{};
    std::string gait{}; // PACE or TROT
    int distance = mile;
    std::vector<Entry> entries{}; // in the order of the program
};

struct Driver {
    std::string name{};
    int rating = 0; // thousandths
};

struct Card {
    std::string track{};
    Day date{};
    std::vector<Race> races{};
    std::vector<Driver> drivers{};       // number 1 first
    std::vector<std::string> trainers{}; // number 1 first
};

// "20260314".
std::string dateText(Day day);

} // namespace samples
