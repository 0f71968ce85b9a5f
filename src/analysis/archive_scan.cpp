#include "analysis/archive_scan.h"

#include "core/numbers.h"
#include "screen/ports.h"

#include <algorithm>
#include <bit>
#include <cstring>

namespace quillon {
namespace {

using namespace archivePlaces;

/// Reads any line, and what is no number as 0.
class LenientFigures {
public:
    explicit LenientFigures(TextView line) : line_(line) {}

    template <Places places>
    double figure() const {
        return lenientNumber(cellIn(line_, places));
    }
    double lastTwo() const { return lenientNumber(rightOf(line_, 2)); }

private:
    TextView line_;
};

/// Reads a line as it was recorded: counts of blanks and digits, sums of blanks, digits, the point and two
/// digits. An archive of a million cards has twenty million of them, so eight characters are taken at once. A
/// line in another form reads wrongly, which is told at its end.
class PlainFigures {
public:
    explicit PlainFigures(TextView line) : line_(line) {}

    static bool canRead(TextView line) {
        constexpr int lastPlace = sums.back().first + sums.back().width - 1;
        return line.size() >= lastPlace && std::endian::native == std::endian::little;
    }

    template <Places places>
    double figure() {
        const char* const end = line_.data() + places.first + places.width - 1;
        if constexpr (places.width < sumWidth) return count<places.width>(end);
        if constexpr (places.width > sumWidth) strange_ |= Eight{end[-places.width] != blank};
        return sum(end);
    }
    double lastTwo() { return count<2>(line_.data() + line_.size()); }

    bool allPlain() const { return strange_ == 0; }

private:
    using Eight = std::uint64_t; // characters, the first in the lowest byte
    static constexpr Eight inEach = 0x0101010101010101;
    static constexpr int sumWidth = 9;
    static constexpr int wholeWidth = 6; // of a sum, before its point

    static Eight eightBefore(const char* end) {
        Eight eight = 0;
        std::memcpy(&eight, end - sizeof eight, sizeof eight);
        return eight;
    }

    static constexpr Eight first(int characters) { return (Eight{1} << characters * 8) - 1; }

    template <int width>
    double count(const char* end) {
        constexpr Eight others = first(sizeof(Eight) - width);
        return number((eightBefore(end) & ~others) | (inEach * blank & others));
    }

    double sum(const char* end) {
        const Eight withPoint = eightBefore(end - 1);
        const Eight eight = (withPoint & first(wholeWidth)) | (eightBefore(end) & ~first(wholeWidth));
        strange_ |= (withPoint >> wholeWidth * 8 & 0xFF) ^ '.';
        strange_ |= ~eight & Eight{0x1010} << wholeWidth * 8; // digits have this bit, blanks have not
        return number(eight) / 100.0;
    }

    double number(Eight eight) {
        const Eight digits = (eight | inEach * 0x10) ^ inEach * '0'; // a blank is a 0 as well
        const Eight blanks = (~eight >> 4 & inEach) * 0xFF; // all bits of a character that must be a blank
        strange_ |= (digits | (digits + inEach * 0x76)) & inEach * 0x80; // beyond 9
        strange_ |= digits & blanks;
        strange_ |= blanks & (blanks + 1); // a blank after a digit
        const Eight pairs = digits * ((10U << 8) + 1) >> 8 & 0x00FF00FF00FF00FF;
        const Eight fours = pairs * ((100U << 16) + 1) >> 16 & 0x0000FFFF0000FFFF;
        return static_cast<std::int32_t>(fours * ((Eight{10000} << 32) + 1) >> 32);
    }

    TextView line_;
    Eight strange_ = 0; ///< bits of characters that are not as they should be
};

template <class Figures, std::size_t... win, std::size_t... bet>
ArchivedCard cardOf(Figures& figures, std::index_sequence<win...>, std::index_sequence<bet...>) {
    return {
        .races = figures.template figure<races>(),
        .wins = {figures.template figure<wins[win]>()...},
        .sums = {figures.template figure<sums[bet]>()...},
        .superfectaRaces = figures.lastTwo(),
    };
}

template <class Figures>
ArchivedCard cardOf(Figures& figures) {
    return cardOf(figures, std::make_index_sequence<wins.size()>(), std::make_index_sequence<sums.size()>());
}

} // namespace

ArchivedCard archivedCardOf(TextView line) {
    if (PlainFigures::canRead(line)) {
        PlainFigures plain{line};
        const ArchivedCard card = cardOf(plain);
        if (plain.allPlain()) return card;
    }
    LenientFigures lenient{line};
    return cardOf(lenient);
}

TextView cellIn(TextView line, Places places) { return midOf(line, places.first, places.width); }

TextView trackIn(TextView line) { return trimmed(cellIn(line, archivePlaces::track)); }

// A line longer than a block makes the block longer.
constexpr std::size_t blockSize = 1U << 18;

std::optional<TextView> LinesForwards::next() {
    auto line = block_.next();
    if (!line) {
        loadBlock();
        line = block_.next();
    }
    if (line) lineStart_ = loadedStart_ + static_cast<std::uint64_t>(line->data() - loaded_);
    return line;
}

// Takes the whole lines that begin the rest of the file, or all of it.
void LinesForwards::loadBlock() {
    TextView lines;
    for (std::size_t size = blockSize; lines.empty(); size *= 2) {
        const TextView block = file_.read(start_, size);
        const bool isRest = block.size() < size;
        lines = isRest ? block : block.substr(0, block.rfind('\n') + 1);
        if (isRest) break;
    }
    loadedStart_ = start_;
    loaded_ = lines.data();
    start_ += lines.size();
    block_ = LineReader{lines};
}

LinesBackwards::LinesBackwards(const FilePlace& place) : file_(place), end_(file_.size()) {}

std::optional<TextView> LinesBackwards::next() {
    if (lines_.empty()) loadBlock();
    if (lines_.empty()) return std::nullopt;
    const TextView line = lines_.back();
    lines_.pop_back();
    return line;
}

// Takes the whole lines that end the rest of the file.
void LinesBackwards::loadBlock() {
    std::uint64_t start = end_;
    TextView block;
    for (std::uint64_t size = blockSize; start > 0 && block.empty(); size *= 2) {
        start = end_ - std::min(end_, size);
        block = file_.read(start, static_cast<std::size_t>(end_ - start));
        if (start == 0) break;
        const std::size_t lineEnd = std::min(block.find('\n'), block.size() - 1); // of a line begun before
        block.remove_prefix(lineEnd + 1);
        if (!block.empty()) start += lineEnd + 1;
    }
    end_ = start;
    LineReader reader{block};
    while (const auto line = reader.next()) lines_.push_back(*line);
}

TextView PiecesAhead::read(std::uint64_t start, std::size_t count) {
    constexpr std::size_t ahead = 1U << 16;
    if (start < blockStart_ || start + count > blockStart_ + block_.size()) {
        FilePieces file{place_};
        block_ = file.read(start, std::max(ahead, count));
        blockStart_ = start;
    }
    const auto offset = static_cast<std::size_t>(start - blockStart_);
    return TextView{block_}.substr(offset, count);
}

bool LongWork::goesOn(std::uint64_t part) {
    constexpr std::uint64_t linesPerReport = 100000;
    done_ += part;
    if (++lines_ % linesPerReport != 0) return true;
    return ports.progress(std::min(1.0, static_cast<double>(done_) / static_cast<double>(size_)));
}

} // namespace quillon
