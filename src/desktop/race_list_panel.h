// The list of the card's races with the check mark of the one on show; a double click opens one.
#pragma once

#include "desktop/appearance.h"
#include "desktop/command_runner.h"

#include <QWidget>

namespace quillon {

class RaceListPanel : public QWidget {
    Q_OBJECT

public:
    RaceListPanel(CommandRunner& runner, Appearance& appearance, QWidget* parent = nullptr);

    /// Draws what the screen holds now.
    void refresh();

private:
    CommandRunner& runner_;
    Appearance& appearance_;
};

} // namespace quillon
