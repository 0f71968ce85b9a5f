// How wide the columns of a table are.
#pragma once

#include <QTableView>

#include <vector>

namespace quillon {

struct ColumnWidth {
    int wanted = 0;
    int needed = 0; ///< by the texts and the head
};

/// The widths that the texts of the first rows need, column by column; as if all were bold where asked.
std::vector<int> textWidths(const QTableView& view, bool asBold);

/// The width that the head of a column needs, with the arrow of a sorted one.
int headWidth(const QTableView& view, int column);

/// Takes what columns do not need, where they have together more than this room.
void fitInto(int room, std::vector<ColumnWidth>& widths);

} // namespace quillon
