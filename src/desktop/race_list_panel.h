// The list of the card's races with the check mark of the one on show; a double click opens one.
#pragma once

#include "desktop/appearance.h"
#include "desktop/command_runner.h"

#include <QListWidget>
#include <QWidget>

namespace quillon {

class RaceListPanel : public QWidget {
    Q_OBJECT

public:
    RaceListPanel(CommandRunner& runner, Appearance& appearance, QWidget* parent = nullptr);

    /// Draws what the screen holds now.
    void refresh();

signals:
    void raceOpened();

private:
    void fill();
    void check();
    void lay();
    void open(int row);

    CommandRunner& runner_;
    Appearance& appearance_;
    QListWidget* list_;
    std::vector<Text> lines_; ///< as the list shows them
    int current_ = -1;        ///< row of the race on show
};

} // namespace quillon
