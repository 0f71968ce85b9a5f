#include "tables/track_table.h"

#include "core/files.h"

#include <algorithm>
#include <numeric>

namespace quillon {
namespace {

// Pars are seconds of a minute; one below 10 has left its minute out. A blank one is none.
Text parOf(TextView columns) {
    const TextView par = trimmed(columns);
    const double seconds = lenientNumber(par);
    return !par.empty() && seconds < 10 ? numberText(seconds + 60) : Text{par};
}

Integer postLimitOf(TextView row) {
    constexpr Integer usual = 12;
    const Integer limit = toInteger(lenientNumber(rightOf(row, 2)));
    return limit > 0 ? limit : usual;
}

TrackRecord trackRecordOf(TextView row) {
    const TextView lineRow = trimmed(row);
    return {
        .trackKey = Text{trimmed(midOf(row, 1, 5))},
        .trackLine = Text{midOf(row, 11)},
        .trackName = Text{midOf(row, 13, 53)},
        .courseSize = Text{trimmed(midOf(row, 37, 3))},
        .stretchLength = toInteger(lenientNumber(midOf(row, 42, 4))),
        .stretchFlag = Text{midOf(row, 46, 1)},
        .maxPosts = postLimitOf(row),
        .lineCourseSize = Text{trimmed(midOf(lineRow, 37, 3))},
        .linePar = parOf(midOf(lineRow, 50, 4)),
    };
}

auto rowsOf(const TrackTable& table, TextView trackKey) {
    struct ByKey {
        const TrackTable& table;
        bool operator()(std::size_t row, TextView key) const { return table.rows[row].trackKey < key; }
        bool operator()(TextView key, std::size_t row) const { return key < table.rows[row].trackKey; }
    };
    return std::equal_range(table.byKey.begin(), table.byKey.end(), trackKey, ByKey{table});
}

} // namespace

const TrackRecord* TrackTable::first(TextView trackKey) const {
    const auto [begin, end] = rowsOf(*this, trackKey);
    return begin == end ? nullptr : &rows[*begin];
}

const TrackRecord* TrackTable::last(TextView trackKey) const {
    const auto [begin, end] = rowsOf(*this, trackKey);
    return begin == end ? nullptr : &rows[*(end - 1)];
}

TrackTable trackTableOf(TextView content) {
    TrackTable table;
    LineReader lines{content};
    while (const auto row = lines.next()) {
        if (row->empty()) break;
        table.rows.push_back(trackRecordOf(*row));
    }
    table.byKey.resize(table.rows.size());
    std::iota(table.byKey.begin(), table.byKey.end(), std::size_t{0});
    std::stable_sort(table.byKey.begin(), table.byKey.end(), [&](std::size_t left, std::size_t right) {
        return table.rows[left].trackKey < table.rows[right].trackKey;
    });
    return table;
}

Text trackKeyOf(TextView track) {
    const TextView key = trimmed(track);
    return Text{key == "M" ? "M1" : key};
}

} // namespace quillon
