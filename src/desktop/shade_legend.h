// What the shades of past lines mean.
#pragma once

#include "screen/screen.h"

#include <QLabel>
#include <QWidget>

namespace quillon {

/// The two shades of past lines, the days that they reach back to, and that an entry's latest line has one
/// whatever its age.
class ShadeLegend : public QWidget {
    Q_OBJECT

public:
    explicit ShadeLegend(QWidget* parent = nullptr);

    void showFor(const Grid& lines);
    void setTextFont(const QFont& font);

private:
    QLabel* recent_;
    QLabel* older_;
    QLabel* latest_;
};

} // namespace quillon
