// Find in the table or text that has the focus.
#pragma once

#include <QWidget>

namespace quillon {

class FindBar : public QWidget {
    Q_OBJECT

public:
    explicit FindBar(QWidget* parent = nullptr);

    /// Opens the bar and takes the focus; searches the table that had it, or the first one in sight.
    void open();
    void findNext(bool backwards = false);
};

} // namespace quillon
