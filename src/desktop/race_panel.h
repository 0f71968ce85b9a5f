// The entries of the race on show, with the buttons that stand beside their rows.
#pragma once

#include "desktop/appearance.h"
#include "desktop/command_runner.h"

#include <QWidget>

namespace quillon {

class RacePanel : public QWidget {
    Q_OBJECT

public:
    RacePanel(CommandRunner& runner, Appearance& appearance, QWidget* parent = nullptr);

    /// Draws what the screen holds now.
    void refresh();

private:
    CommandRunner& runner_;
    Appearance& appearance_;
};

} // namespace quillon
