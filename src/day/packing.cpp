#include "day/packing.h"

#include "analysis/analysis_view.h"
#include "card/card_packing.h"
#include "screen/screen_fields.h"
#include "screen/screen_packing.h"
#include "tables/load_fields.h"
#include "tables/load_packing.h"
#include "tables/table_rows.h"

#include <functional>

namespace quillon {
namespace {

// Tells a program with other fields, or with tables of another size, from this one.
std::uint64_t formOfState() {
    Text form;
    const auto add = [&](const auto& list) {
        std::apply([&](const auto&... field) { ((form += field.name, form += ' '), ...); }, list);
    };
    const auto addAll = [&](const auto&... lists) { (add(lists), ...); };
    addAll(cardScalars, furtherScalars, cardTables, raceInfoFields, raceEntryFields, lineFields, driverFields,
           selectionFields, lineCursorFields);
    addAll(colourFields, buttonFields, boxFields, labelFields, choiceListFields, menuStateFields,
           raceHeaderFields, screenFields);
    addAll(horseFields, furtherLineFields, trackRecordFields, trackTableFields, loadStateFields);
    for (const std::size_t size : {sizeof(RaceCard), sizeof(LineCursor), sizeof(Screen), sizeof(LoadState)})
        form += std::to_string(size) + ' ';
    return std::hash<Text>{}(form);
}

// Which views have rows that are not packed.
struct MadeRows {
    bool lineTable = false;
    bool profile = false;
    bool stars = false;
};

MadeRows madeRowsOf(const Screen& state) {
    return {.lineTable = state.dataView[lineTableView].hasMadeRows(),
            .profile = state.profile.hasMadeRows(),
            .stars = state.stars.hasMadeRows()};
}

// As if the user had gone back to the races before the state was taken.
void showRaces(Snapshot& state) {
    const Snapshot now = Snapshot::taken();
    state.putBack();
    attempt(MainScreen);
    state = Snapshot::taken();
    now.putBack();
}

void pack(Packer& out, const FileChange& file) {
    const auto& [place, before, after] = file;
    pack(out, static_cast<unsigned>(place.folder));
    pack(out, place.name);
    pack(out, before);
    pack(out, after);
}

bool unpack(Unpacker& in, FileChange& file) {
    auto& [place, before, after] = file;
    return unpackEnum(in, place.folder, Folder::recovery) && unpack(in, place.name) && unpack(in, before) &&
           unpack(in, after);
}

void pack(Packer& out, const Change& change) {
    const auto& [race, what, before, after, files] = change;
    pack(out, race);
    pack(out, what);
    pack(out, before);
    pack(out, after);
    out.putNumber(files.size());
    for (const FileChange& file : files) pack(out, file);
}

bool unpack(Unpacker& in, Change& change) {
    auto& [race, what, before, after, files] = change;
    std::size_t count = 0;
    if (!unpack(in, race) || !unpack(in, what) || !unpack(in, before) || !unpack(in, after) ||
        !in.takeCount(count))
        return false;
    for (; count > 0; --count)
        if (!unpack(in, files.emplace_back())) return false;
    return true;
}

} // namespace

void pack(Packer& out, const Snapshot& state) {
    static const std::uint64_t form = formOfState();
    out.putNumber(form);
    pack(out, state.card_);
    pack(out, state.cursor_);
    pack(out, state.screen_);
    pack(out, state.load_);
    const MadeRows made = madeRowsOf(state.screen_);
    for (const bool view : {made.lineTable, made.profile, made.stars}) pack(out, view);
}

bool unpack(Unpacker& in, Snapshot& state) {
    static const std::uint64_t form = formOfState();
    std::uint64_t packedForm = 0;
    MadeRows made;
    if (!in.takeNumber(packedForm) || packedForm != form || !unpack(in, state.card_) ||
        !unpack(in, state.cursor_) || !unpack(in, state.screen_) || !unpack(in, state.load_))
        return false;
    for (bool* const view : {&made.lineTable, &made.profile, &made.stars})
        if (!unpack(in, *view)) return false;

    Screen& screen = state.screen_;
    if (made.lineTable) {
        Grid& view = screen.dataView[lineTableView];
        if (view.rows() != Grid::firstRow || view.columns() != state.load_.lineRows.fieldCount() + 1)
            return false;
        view.showRows(Grid::firstRow, rowsOf(state.load_.lineRows));
    }
    if (made.profile) screen.profile = Grid{0, 0};
    if (made.stars) screen.stars = Grid{0, 0};
    if ((made.profile && screen.profileVisible) || (made.stars && screen.starsVisible)) showRaces(state);
    return true;
}

void pack(Packer& out, const ChangeList& list) {
    pack(out, list.loaded_);
    out.putNumber(list.changes_.size());
    for (const Change& change : list.changes_) pack(out, change);
    for (const Snapshot& state : list.states_) pack(out, state);
    pack(out, list.position_);
    pack(out, list.savedAt_);
    pack(out, list.lostSinceSave_);
    pack(out, list.recorded_);
}

bool unpack(Unpacker& in, ChangeList& list) {
    std::size_t count = 0;
    if (!unpack(in, list.loaded_) || !list.loaded_ || !in.takeCount(count)) return false;
    list.changes_.clear();
    list.states_.clear();
    for (std::size_t at = 0; at < count; ++at)
        if (!unpack(in, list.changes_.emplace_back())) return false;
    for (std::size_t at = 0; at <= count; ++at)
        if (!unpack(in, list.states_.emplace_back())) return false;
    list.touch();
    return unpack(in, list.position_) && unpack(in, list.savedAt_) && unpack(in, list.lostSinceSave_) &&
           unpack(in, list.recorded_) && list.position_ <= count && list.savedAt_ <= count;
}

} // namespace quillon
