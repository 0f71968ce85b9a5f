#include "screen/screen.h"

#include "core/failure.h"

#include <algorithm>
#include <utility>

namespace quillon {

Screen screen;

Grid::Grid(int rows, int columns) { layOut(rows, columns); }

void Grid::check(int row, int column) const {
    if (row < 0 || row >= rowCount_ || column < 0 || column >= columnCount_)
        fail("cell (" + std::to_string(row) + ", " + std::to_string(column) + ") is outside its view");
}

// Versions are given once in a run, so that a view put back from a copy differs from what stood there.
void Grid::change() {
    static std::uint64_t lastVersion = 0;
    version_ = ++lastVersion;
}

Grid::Rows& Grid::writtenRows() {
    if (rows_.use_count() > 1) rows_ = std::make_shared<Rows>(*rows_);
    change();
    return *rows_;
}

void Grid::layOut(int rows, int columns) {
    source_ = nullptr;
    rowCount_ = rows;
    columnCount_ = columns;
    rows_ = std::make_shared<Rows>(static_cast<std::size_t>(rows));
    change();
}

std::span<Cell> Grid::cellsOf(int row) {
    check(row, 0);
    if (isMade(row)) fail("row " + std::to_string(row) + " of the view is made from a file");
    auto& cells = writtenRows()[static_cast<std::size_t>(row)];
    if (!cells)
        cells = std::make_shared<Row>(static_cast<std::size_t>(columnCount_));
    else if (cells.use_count() > 1)
        cells = std::make_shared<Row>(*cells);
    return *cells;
}

Cell& Grid::operator()(int row, int column) {
    check(row, column);
    return cellsOf(row)[static_cast<std::size_t>(column)];
}

const Cell& Grid::read(int row, int column) const {
    static const Cell none;
    check(row, column);
    if (isMade(row)) return madeCell(row, column);
    const auto& cells = (*rows_)[static_cast<std::size_t>(row)];
    return cells ? (*cells)[static_cast<std::size_t>(column)] : none;
}

const Cell& Grid::madeCell(int row, int column) const {
    if (lookedAt_ != row) {
        madeCells_.assign(static_cast<std::size_t>(columnCount_), {});
        source_->make(row, madeCells_);
        lookedAt_ = row;
    }
    return madeCells_[static_cast<std::size_t>(column)];
}

void Grid::shade(int row, int from, int to, std::optional<Colour> background) {
    check(row, from);
    check(row, to);
    const auto cells = cellsOf(row);
    for (int column = from; column <= to; ++column)
        cells[static_cast<std::size_t>(column)].background = background;
}

void Grid::showRows(int first, RowSource source) {
    if (rows_->size() != static_cast<std::size_t>(first))
        writtenRows().resize(static_cast<std::size_t>(first));
    change();
    rowCount_ = first + source.count;
    source_ = std::make_shared<const RowSource>(std::move(source));
    lookedAt_ = 0;
}

void Grid::letGoOfSource() {
    if (!source_) return;
    source_ = nullptr;
    rowCount_ = static_cast<int>(rows_->size());
    lookedAt_ = 0;
    madeCells_.clear();
}

void Grid::clear() {
    letGoOfSource();
    Rows& rows = writtenRows();
    for (std::size_t row = 1; row < rows.size(); ++row) rows[row] = nullptr;
}

void Grid::clearAll() {
    clear();
    if (!rows_->empty()) rows_->front() = nullptr;
}

void Grid::shareWith(const Grid& other) {
    if (rows_ == other.rows_) return;
    Rows shared = *rows_;
    for (std::size_t row = 0; row < std::min(shared.size(), other.rows_->size()); ++row)
        if (const auto& theirs = (*other.rows_)[row]; theirs && shared[row] && *shared[row] == *theirs)
            shared[row] = theirs;
    rows_ = shared == *other.rows_ ? other.rows_ : std::make_shared<Rows>(std::move(shared));
}

bool Grid::sameTexts(const Grid& other) const {
    if (rows_ == other.rows_) return true;
    if (rows_->size() != other.rows_->size()) return false;
    static const Cell none;
    for (std::size_t row = 0; row < rows_->size(); ++row) {
        const auto& left = (*rows_)[row];
        const auto& right = (*other.rows_)[row];
        if (left == right) continue;
        for (std::size_t column = 0; column < static_cast<std::size_t>(columnCount_); ++column)
            if ((left ? (*left)[column] : none).text != (right ? (*right)[column] : none).text) return false;
    }
    return true;
}

void Screen::offer(StartOffer what) {
    static constexpr std::array captions{"Start", "View Races", "Select Race"};
    startOffer = what;
    start.caption = captions.at(static_cast<std::size_t>(what));
}

void Screen::clearCardViews() {
    for (Grid& view : dataView) view.clear();
    for (Grid& view : raceView) view.clear();
}

void Screen::clear() {
    std::destroy_at(this);
    std::construct_at(this);
}

void Screen::shareWith(const Screen& other) {
    for (std::size_t view = 0; view < dataView.size(); ++view) dataView[view].shareWith(other.dataView[view]);
    for (std::size_t view = 0; view < raceView.size(); ++view) raceView[view].shareWith(other.raceView[view]);
    lineTaken.shareWith(other.lineTaken);
    boardsToTakeIn.shareWith(other.boardsToTakeIn);
}

} // namespace quillon
