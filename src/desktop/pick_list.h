// A list of the screen whose lines are picked one by one.
#pragma once

#include "screen/screen.h"

#include <QListWidget>

#include <vector>

namespace quillon {

/// A list whose lines are picked by a click or by Enter.
class PickList : public QListWidget {
    Q_OBJECT

public:
    explicit PickList(QWidget* parent = nullptr);

    /// Shows these lines with the one that was picked as the current one.
    void showLines(const ChoiceList& list);

signals:
    void picked(int row);

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    std::vector<Text> lines_;
};

} // namespace quillon
