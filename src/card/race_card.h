// The store: everything the system knows of the open card, reached by name.
//
// One race card lives as long as the program. Steps take no arguments; they read and write `card`, and hand
// each other the line at work through `cursor`. Cells are kept as text exactly as read or formatted, so the
// same number may occur with and without leading blanks; code that compares them takes the number out first.
//
// Indices: race 0 to 30 (0 stays empty), entry 0 to 20 (the post position; a horse without one, post 99, is
// entry 0), line 0 to 30 (1 is the latest), line number 0 to 3000 through the whole card.
#pragma once

#include "card/text_cell.h"
#include "core/numbers.h"
#include "core/table.h"
#include "core/text.h"

#include <array>
#include <cstdint>
#include <memory>
#include <span>

namespace quillon {

constexpr int raceExtent = 31;
constexpr int entryExtent = 21;
constexpr int lineExtent = 31;
constexpr int wideEntryExtent = 31; ///< entries that five fields of a past line have room for
constexpr int labelExtent = 26;     ///< races that can have a label, a track code and key picks: 0 to 25
constexpr int lineNumberExtent = 3001;

constexpr int ratedRaces = 23;   ///< races 1 to 23 are selected, ranked, shown and saved
constexpr int ratedEntries = 12; ///< entries 1 to 12 likewise
constexpr int lineCellColumns = 41;
constexpr int rankedPlaces = 5; ///< S1 to S4 and the fifth horse

/// Conditions of one of today's races.
struct RaceInfo {
    Text label{};     ///< "1A" or "7": the caption of the race's button
    Text trackCode{}; ///< track key, "M" made "M1"
    Text trackInfo{}; ///< the track's description
    Text purse{};
    Text classText{}; ///< today's conditions, at most 105 characters
    Text todaysCr{};
    Text wagering{};
    Text postTime{};
    Text gait{};
    Text distance{};
    Integer ratingNote = 0;   ///< filled rows of the race's data view when it was ranked
    Text raceLabelDistance{}; ///< label and distance joined, as a saved card carries them

    bool operator==(const RaceInfo&) const = default;
};

/// One past race of an entry, under the names of the running-line table's columns.
struct PastLine {
    Text DATE{}; ///< yyyymmdd
    Text TRACK{};
    Text COND{};
    Text PURSE{}; ///< thousands as read; the end of a load makes them dollars
    Text CLASS{}; ///< holds "QU" for a qualifier
    Text CR{};
    Text DIST_MILES{};
    Text LEAD_TM_1Q{};
    Text LEAD_TM_2Q{};
    Text LEAD_TM_3Q{};
    Text LEAD_TM_FN{};
    Text POST{}; ///< 0 or less marks a line without calls
    Text CALL_1Q_BF{};
    Text CALL_1Q_PO{};
    Text CALL_1Q_PK{};
    Text CALL_1Q_AF{};
    Text CALL_2Q_BF{};
    Text CALL_2Q_PO{};
    Text CALL_2Q_PK{};
    Text CALL_2Q_AF{};
    Text CALL_3Q_BF{};
    Text CALL_3Q_PO{};
    Text CALL_3Q_PK{};
    Text CALL_3Q_AF{};
    Text CALL_ST_PO{};
    Text CALL_FN_PO{};
    Text HRSE_TM_4Q{}; ///< the entry's own last quarter
    Text HRSE_TM_FN{};
    Text driverName{};
    Text rating{}; ///< at most 5 characters, "99.9" when unusable
    Integer lineNumber = 0;

    bool operator==(const PastLine&) const = default;
};

/// One of today's entries.
struct RaceEntry {
    TextCell horseName{};
    TextCell programNumber{}; ///< right-aligned, width 3
    TextCell morningOdds{};   ///< right-aligned, width 4
    Text postPosition{};      ///< right-aligned, width 3
    Integer driverNumber = 0;
    Text driverName{};
    Text driverUdr{};        ///< "#.#00", right-aligned, width 5
    TextCell chosenDriver{}; ///< the driver shown for today
    Text trainerName{};
    Text favMark{};
    Integer linesInLastWindow = 0; ///< lines at most 33 days before the card's date
    Integer linesInFiftyDays = 0;
    Integer chosenLineNumber = 0;
    Text rating{};
    PastLine chosen{}; ///< the line that speaks for the entry

    bool operator==(const RaceEntry&) const = default;
};

struct Driver {
    Text name{}; ///< last name, comma, first initial
    Text udr{};

    bool operator==(const Driver&) const = default;
};

/// One ranked row of a race: S1 to S4 and the fifth horse.
struct Selection {
    Text selectionName{};
    Text selectionDriver{};
    Text selectionOdds{};
    Text selectionRating{};
    Text selectionPost{};

    bool operator==(const Selection&) const = default;
};

/// Past lines by race, entry and line. A card has a few thousand of the 29,791 there is room for, so a line
/// is made when it is first written. Copies share a line until one of them writes it.
class PastLineTable {
public:
    /// The line as it stands; an empty one where nothing was written. Fails outside the bounds.
    const PastLine& read(int race, int entry, int line) const;

    /// The line to be written, made when it is not there yet. Fails outside the bounds.
    PastLine& write(int race, int entry, int line);

    /// The same for the few fields that have room for entries up to 30: before and after the second and the
    /// third call, and the line's number.
    PastLine& writeWide(int race, int entry, int line);

    /// True where a line was written. Fails outside the bounds.
    bool has(int race, int entry, int line) const;

    /// What stands from now on in lines 0 to `lines` - 1 of the rated entries where nothing was written.
    void fillRatedEntries(int lines, const PastLine& blankLine);

    void clear();
    void shareWith(const PastLineTable& other) { lines_.shareWith(other.lines_); }

    /// Whether both hold the same lines: not their like, but the very ones.
    bool operator==(const PastLineTable& other) const { return lines_ == other.lines_; }

private:
    friend void pack(Packer& out, const PastLineTable& table);
    friend bool unpack(Unpacker& in, PastLineTable& table);

    bool isFilled(int race, int entry, int line) const;

    PastLine blankLine_;
    int filledLines_ = 0;
    Table<std::shared_ptr<PastLine>, raceExtent, wideEntryExtent, lineExtent> lines_;
};

/// The cells of the card's lines as their data views first showed them, by line number and column. There are
/// over a hundred thousand, nearly all of a few characters, so a line keeps its cells joined in one text.
class LineCellTable {
public:
    static constexpr std::array extents{lineNumberExtent, lineCellColumns};

    /// The cell as it stands, until the line is written again; an empty one where nothing was written. Fails
    /// outside the bounds.
    TextView read(int lineNumber, int column) const;

    /// Writes all cells of a line: column 0 from the first cell, and so on. Fails outside the bounds.
    void writeLine(int lineNumber, std::span<const TextView, lineCellColumns> cells);

    void clear();
    void shareWith(const LineCellTable& other) { lines_.shareWith(other.lines_); }

    /// Whether both hold the same lines: not their like, but the very ones.
    bool operator==(const LineCellTable& other) const { return lines_ == other.lines_; }

private:
    friend void pack(Packer& out, const LineCellTable& table);
    friend bool unpack(Unpacker& in, LineCellTable& table);

    struct Line {
        Text joined;
        std::array<std::uint32_t, lineCellColumns> ends{}; ///< where each cell ends in it
    };
    friend void pack(Packer& out, const Line& line);
    friend bool unpack(Unpacker& in, Line& line);

    Table<std::shared_ptr<const Line>, lineNumberExtent> lines_;
};

struct RaceCard {
    Text cardFileName{}; ///< TRACK_yyyymmdd.pmd; .pmd2 for a card that starts above race 1, until it is saved
    Integer raceCount = 0;
    Integer labelledRaces = 0; ///< races with a card letter
    Integer raceOffset = 0;    ///< the card's first race less 1
    Text trackSize{};          ///< course size of the card's track: "1/2", "5/8", "1.M" ...
    Integer stretchLength = 0; ///< feet
    Integer maxPosts = 0;      ///< horses that the track starts
    Integer totalLines = 0;    ///< lines read so far
    Text cardDate{};           ///< yyyymmdd
    Text recallMode{};         ///< "R" after a recall, "RX" after a results pass
    Text poolText{};           ///< pool of a multi-race wager at work
    Integer poolLegs = 0;      ///< and its number of legs
    Integer s1Wins = 0;        ///< wins of S1 to S4 in the last summary
    Integer s2Wins = 0;
    Integer s3Wins = 0;
    Integer s4Wins = 0;
    Integer superfectaRaces = 0;
    Text unreadFile{};     ///< file of the recalled card that couldn't be read: a save would write over it
    Text starPercentage{}; ///< of the star sheet, as printed: empty until the first race of a sheet has ended

    Table<RaceInfo, raceExtent> raceInfo;
    Table<RaceEntry, raceExtent, entryExtent> entry;
    PastLineTable pastLine;
    Table<Driver, 301> driverTable;
    Table<Text, 201> trainerTable;
    LineCellTable lineCells;
    Table<Integer, rankedPlaces + 1>
        rankEntry; ///< entry of S1 to S4 and the fifth horse of the race ranked last
    Table<Selection, raceExtent, rankedPlaces + 1> selection;
    Table<Text, raceExtent, 10> raceOutcome;
    Table<Text, raceExtent, 22> payoffRecord;
    Table<Text, raceExtent, 11> pickPayoff;
    Table<Text, raceExtent, 21> pickLegs;
    Table<Text, labelExtent, 5> keyPicks; ///< by race and pick
    Table<Integer, raceExtent> winHeat;
    Table<Integer, raceExtent> placeHeat;
    Table<Integer, raceExtent, entryExtent> heatPost;
    Table<Text, raceExtent, entryExtent> heatRating;

    /// Everything back to empty texts and zero.
    void clear();

    /// Lets go of rows of its tables that are the same as the other's, and shares those.
    void shareWith(const RaceCard& other);
};

/// What the passes over the card's lines hand each other: where they stand, and the line at work.
struct LineCursor {
    Integer race = 0;
    Integer entry = 0;
    Integer line = 0;
    Integer row = 0;              ///< row of the race's data view
    Integer lineNumberInRace = 0; ///< column "Line #"
    Integer shadedRows = 0;       ///< rows of the entry that have a shade
    Text wasFavourite{};          ///< "Y" while the entry's latest line was a favourite's
    Text lineValue{};             ///< the figure at work, one decimal, or " - ", "***", "99.9"
    Text lineSize{};              ///< course size of the line
    Text leaderFinal{};           ///< seconds of the leader's third time
    Text horseFinal{};            ///< seconds of the horse's final time
    Text firstCall{};             ///< positions at the calls
    Text secondCall{};
    Text thirdCall{};
    Text firstPark{}; ///< park marks at the calls
    Text secondPark{};
    Text thirdPark{};
    double postNumber = 0;   ///< post of the last line that had calls
    Integer scratchPost = 0; ///< post asked for in the table of scratch credits
    Text scratchAdjust{};    ///< and its answer
};

extern RaceCard card;
extern LineCursor cursor;

} // namespace quillon
