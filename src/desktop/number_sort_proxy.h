// Sorts a table by what its texts mean.
#pragma once

#include <QSortFilterProxyModel>

namespace quillon {

/// Sorts numbers as numbers ("$ 12.60", "45.5%", " 9"), other texts by the number that they begin with ("2A"
/// before "10A") and then as text.
class NumberSortProxy : public QSortFilterProxyModel {
    Q_OBJECT

public:
    using QSortFilterProxyModel::QSortFilterProxyModel;

    /// The first `count` columns sort by the order of the table's rows: times of day, race labels.
    void setRowOrderColumns(int count) { rowOrderColumns_ = count; }

protected:
    bool lessThan(const QModelIndex& left, const QModelIndex& right) const override;

private:
    int rowOrderColumns_ = 0;
};

} // namespace quillon
