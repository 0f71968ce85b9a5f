// The PR column of a table tells why: by a tool tip under the mouse, and by Space on a cell.
#pragma once

#include "desktop/why_texts.h"

#include <QObject>

#include <functional>
#include <optional>

namespace quillon {

class CellTableView;

class WhyPointer : public QObject {
    Q_OBJECT

public:
    /// The line that a row of the table stands for.
    using TargetOf = std::function<std::optional<WhyTarget>(int row)>;

    WhyPointer(CellTableView& table, int ratingColumn, TargetOf targetOf);

signals:
    /// The current cell has come to a line.
    void pointedAt(const WhyTarget& target);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool isRating(const QModelIndex& cell) const;
    /// What the cell tells; empty where it isn't a rating.
    QString tipOf(const QModelIndex& cell) const;
    void tellAt(const QModelIndex& cell, const QPoint& place);

    CellTableView& table_;
    int ratingColumn_;
    TargetOf targetOf_;
    bool toldBySpace_ = false;
};

} // namespace quillon
