// The archive HRA.ini: a line a card, in fixed places. It only grows, and users edit it by hand, so a line
// may be short, torn or no card at all; what can't be read counts as 0.
#pragma once

#include "core/files.h"
#include "core/text.h"

#include <array>
#include <cstdint>
#include <optional>
#include <utility>
#include <vector>

namespace quillon {

/// Where something stands in a line: its first place, counted from 1, and its width.
struct Places {
    int first;
    int width;
};

// clang-format off
namespace archivePlaces {
inline constexpr Places track{1, 5};
inline constexpr Places key{1, 14};   ///< track, "_" and date (yyyymmdd)
inline constexpr Places date{7, 8};
inline constexpr Places races{15, 3};
inline constexpr std::array wins{Places{18, 5}, Places{23, 5}, Places{28, 5}, Places{33, 5}}; ///< of S1 to S4
inline constexpr std::array sums{     ///< of the track's $2 payoffs, a bet type each
    Places{ 38,  9}, Places{ 47,  9}, Places{ 56,  9},                                    // Win, Place, Show
    Places{ 65,  9}, Places{ 74,  9}, Places{ 83,  9}, Places{ 92,  9}, Places{101,  9},  // exactas
    Places{110,  9}, Places{119,  9}, Places{128,  9},                                    // trifectas
    Places{137, 10}, Places{147, 10}, Places{157, 10},                                    // superfectas
};
} // namespace archivePlaces
// clang-format on

/// What a line of the archive says, as numbers.
struct ArchivedCard {
    double races = 0;
    std::array<double, archivePlaces::wins.size()> wins{};
    std::array<double, archivePlaces::sums.size()> sums{};
    double superfectaRaces = 0; ///< races with a superfecta payoff: the line's last two characters
};

ArchivedCard archivedCardOf(TextView line);

TextView cellIn(TextView line, Places places);
TextView trackIn(TextView line); ///< trimmed

inline FilePlace archivePlace() { return {Folder::working, "HRA.ini"}; }
inline FilePlace starsPlace() { return {Folder::working, "Stars5.ini"}; } ///< a line a race

/// The lines of a file from its first to its last, read in blocks.
class LinesForwards {
public:
    /// Fails when the file can't be opened.
    explicit LinesForwards(const FilePlace& place) : file_(place) {}

    /// The next line without its end, or nothing at the end of the file. It stands until the next call.
    std::optional<TextView> next();

    std::uint64_t size() const { return file_.size(); }    ///< bytes of the file
    std::uint64_t lineStart() const { return lineStart_; } ///< where the line given last begins in the file

private:
    void loadBlock();

    FilePieces file_;
    std::uint64_t start_ = 0; ///< of what was not loaded yet
    std::uint64_t loadedStart_ = 0;
    const char* loaded_ = nullptr; ///< first byte of the block
    LineReader block_{TextView{}};
    std::uint64_t lineStart_ = 0;
};

/// The same from the last to the first.
class LinesBackwards {
public:
    /// Fails when the file can't be opened.
    explicit LinesBackwards(const FilePlace& place);

    /// The line before, without its end, or nothing at the start of the file. It stands until the next call.
    std::optional<TextView> next();

    std::uint64_t size() const { return file_.size(); }

private:
    void loadBlock();

    FilePieces file_;
    std::uint64_t end_;           ///< of what was not loaded yet
    std::vector<TextView> lines_; ///< of the block, those not given yet
};

/// Pieces of a file by their places, for views whose rows are mostly looked at one after another: a good
/// piece after what is asked for is read as well.
class PiecesAhead {
public:
    explicit PiecesAhead(FilePlace place) : place_(std::move(place)) {}

    /// The bytes from `start` on, as many as there are up to `count`. They stand until the next call. Fails
    /// when the file can't be read.
    TextView read(std::uint64_t start, std::size_t count);

private:
    FilePlace place_;
    Text block_; ///< the part of the file that was looked at last
    std::uint64_t blockStart_ = 0;
};

/// Tells the user how far a walk over many lines is, and whether he wants it to go on.
class LongWork {
public:
    explicit LongWork(std::uint64_t size) : size_(size) {} ///< in whatever it is measured

    /// Counts a line that is so much of the work. False when the user cancels.
    bool goesOn(std::uint64_t part);

private:
    std::uint64_t size_;
    std::uint64_t done_ = 0;
    std::uint64_t lines_ = 0;
};

} // namespace quillon
