#include "screen/screen.h"

#include "core/failure.h"

#include <utility>

namespace quillon {

Screen screen;

Grid::Grid(int rows, int columns)
    : cells_(static_cast<std::size_t>(rows)), rowCount_(rows), columnCount_(columns) {}

void Grid::check(int row, int column) const {
    if (row < 0 || row >= rowCount_ || column < 0 || column >= columnCount_)
        fail("cell (" + std::to_string(row) + ", " + std::to_string(column) + ") is outside its view");
}

std::span<Cell> Grid::cellsOf(int row) {
    check(row, 0);
    if (isMade(row)) fail("row " + std::to_string(row) + " of the view is made from a file");
    ++version_;
    auto& cells = cells_[static_cast<std::size_t>(row)];
    if (cells.empty()) cells.resize(static_cast<std::size_t>(columnCount_));
    return cells;
}

Cell& Grid::operator()(int row, int column) {
    check(row, column);
    return cellsOf(row)[static_cast<std::size_t>(column)];
}

const Cell& Grid::read(int row, int column) const {
    static const Cell none;
    check(row, column);
    if (isMade(row)) return madeCell(row, column);
    const auto& cells = cells_[static_cast<std::size_t>(row)];
    return cells.empty() ? none : cells[static_cast<std::size_t>(column)];
}

const Cell& Grid::madeCell(int row, int column) const {
    if (lookedAt_ != row) {
        madeCells_.assign(static_cast<std::size_t>(columnCount_), {});
        make_(row, madeCells_);
        lookedAt_ = row;
    }
    return madeCells_[static_cast<std::size_t>(column)];
}

Text Grid::text(int row, int column) const {
    const Cell& cell = read(row, column);
    return source_ && row > 0 ? source_(row, column) : cell.text;
}

void Grid::shade(int row, int from, int to, std::optional<Colour> background) {
    check(row, from);
    check(row, to);
    const auto cells = cellsOf(row);
    for (int column = from; column <= to; ++column)
        cells[static_cast<std::size_t>(column)].background = background;
}

void Grid::bind(int rows, int columns, Source source) {
    letGoOfMadeRows();
    rowCount_ = rows + 1;
    columnCount_ = columns;
    cells_.assign(static_cast<std::size_t>(rowCount_), {});
    source_ = std::move(source);
    ++version_;
}

void Grid::makeRows(int first, int count, RowMaker make) {
    cells_.resize(static_cast<std::size_t>(first));
    rowCount_ = first + count;
    make_ = std::move(make);
    lookedAt_ = 0;
    ++version_;
}

void Grid::letGoOfMadeRows() {
    if (!make_) return;
    make_ = nullptr;
    rowCount_ = static_cast<int>(cells_.size());
    lookedAt_ = 0;
    madeCells_.clear();
}

void Grid::clear() {
    letGoOfMadeRows();
    for (std::size_t row = 1; row < cells_.size(); ++row) cells_[row].clear();
    source_ = nullptr;
    ++version_;
}

void Grid::clearAll() {
    clear();
    if (!cells_.empty()) cells_.front().clear();
}

Screen::Screen() {
    dataView.fill(Grid{dataViewRows, dataViewColumns});
    raceView.fill(Grid{raceViewRows, raceViewColumns});
}

void Screen::clearCardViews() {
    for (Grid& view : dataView) view.clear();
    for (Grid& view : raceView) view.clear();
}

void Screen::clear() {
    std::destroy_at(this);
    std::construct_at(this);
}

} // namespace quillon
