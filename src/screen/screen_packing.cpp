#include "screen/screen_packing.h"

#include "card/card_packing.h"
#include "screen/screen_fields.h"

#include <algorithm>

namespace quillon {
namespace {

constexpr unsigned cellMarks = 3;

} // namespace

void pack(Packer& out, const Colour& colour) { packFields(out, colourFields, colour); }
bool unpack(Unpacker& in, Colour& colour) { return unpackFields(in, colourFields, colour); }

// There are a hundred thousand cells, most of them empty or plain: one number has the text's length and what
// else there is.
void pack(Packer& out, const Cell& cell) {
    const auto& [text, background, foreground, bold] = cell;
    const auto mark = [](bool is, unsigned place) { return static_cast<std::uint64_t>(is) << place; };
    out.putNumber(std::uint64_t{text.size()} << cellMarks | mark(background.has_value(), 0) |
                  mark(foreground.has_value(), 1) | mark(bold, 2));
    out.putBytes(text);
    if (background) pack(out, *background);
    if (foreground) pack(out, *foreground);
}

bool unpack(Unpacker& in, Cell& cell) {
    auto& [text, background, foreground, bold] = cell;
    std::uint64_t marks = 0;
    TextView bytes;
    if (!in.takeNumber(marks) || !in.takeBytes(bytes, marks >> cellMarks)) return false;
    text = bytes;
    bold = (marks >> 2U & 1U) != 0;
    return ((marks & 1U) == 0 || unpack(in, background.emplace())) &&
           ((marks >> 1U & 1U) == 0 || unpack(in, foreground.emplace()));
}

void pack(Packer& out, const Button& button) { packFields(out, buttonFields, button); }
bool unpack(Unpacker& in, Button& button) { return unpackFields(in, buttonFields, button); }

void pack(Packer& out, const Box& box) { packFields(out, boxFields, box); }
bool unpack(Unpacker& in, Box& box) { return unpackFields(in, boxFields, box); }

void pack(Packer& out, const Label& label) { packFields(out, labelFields, label); }
bool unpack(Unpacker& in, Label& label) { return unpackFields(in, labelFields, label); }

void pack(Packer& out, const ChoiceList& list) { packFields(out, choiceListFields, list); }
bool unpack(Unpacker& in, ChoiceList& list) { return unpackFields(in, choiceListFields, list); }

void pack(Packer& out, const MenuState& item) { packFields(out, menuStateFields, item); }
bool unpack(Unpacker& in, MenuState& item) { return unpackFields(in, menuStateFields, item); }

void pack(Packer& out, const RaceHeader& header) { packFields(out, raceHeaderFields, header); }
bool unpack(Unpacker& in, RaceHeader& header) { return unpackFields(in, raceHeaderFields, header); }

void pack(Packer& out, CardMode mode) { pack(out, static_cast<unsigned>(mode)); }
bool unpack(Unpacker& in, CardMode& mode) { return unpackEnum(in, mode, CardMode::recalled); }

void pack(Packer& out, StartOffer offer) { pack(out, static_cast<unsigned>(offer)); }
bool unpack(Unpacker& in, StartOffer& offer) { return unpackEnum(in, offer, StartOffer::selectRace); }

void pack(Packer& out, const Grid& grid) {
    pack(out, grid.columnCount_);
    pack(out, grid.rows_);
}

bool unpack(Unpacker& in, Grid& grid) {
    constexpr int mostColumns = 10'000; // a vendor's table has fewer fields
    if (!unpack(in, grid.columnCount_) || !unpack(in, grid.rows_) || !grid.rows_) return false;
    if (grid.columnCount_ < 0 || grid.columnCount_ > mostColumns) return false;
    const auto fits = [&](const auto& row) {
        return !row || row->size() == static_cast<std::size_t>(grid.columnCount_);
    };
    if (!std::all_of(grid.rows_->begin(), grid.rows_->end(), fits)) return false;
    grid.source_ = nullptr;
    grid.lookedAt_ = 0;
    grid.madeCells_.clear();
    grid.rowCount_ = static_cast<int>(grid.rows_->size());
    grid.change();
    return true;
}

namespace {

// The parts of the screen that share their rows. The others are short and often stay as they are.
template <class Value>
constexpr bool sharesRows = false;
template <>
constexpr bool sharesRows<Grid> = true;
template <std::size_t count>
constexpr bool sharesRows<std::array<Grid, count>> = true;
template <class Element, int... extents>
constexpr bool sharesRows<Table<Element, extents...>> = true;

bool haveTheirSizes(const Screen& state) {
    const auto sizes = [](const auto& views, int rows, int columns) {
        return std::all_of(views.begin(), views.end(), [=](const Grid& view) {
            return view.rows() == rows && view.columns() == columns;
        });
    };
    return sizes(std::span{state.dataView}.first<lineTableView>(), dataViewRows, dataViewColumns) &&
           sizes(std::span{state.dataView}.subspan<lineTableView + 1>(), dataViewRows, dataViewColumns) &&
           sizes(state.raceView, raceViewRows, raceViewColumns);
}

} // namespace

void pack(Packer& out, const Screen& state) {
    forEachField(screenFields, state, [&](TextView, const auto& value) {
        if constexpr (sharesRows<std::decay_t<decltype(value)>>)
            pack(out, value);
        else
            packRepeated(out, value);
    });
}

bool unpack(Unpacker& in, Screen& state) {
    bool good = true;
    forEachField(screenFields, state, [&](TextView, auto& value) {
        if constexpr (sharesRows<std::decay_t<decltype(value)>>)
            good = good && unpack(in, value);
        else
            good = good && unpackRepeated(in, value);
    });
    return good && haveTheirSizes(state);
}

} // namespace quillon
