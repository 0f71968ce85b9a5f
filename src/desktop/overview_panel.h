// The card at a glance: a race a row; a click opens the race.
#pragma once

#include "desktop/appearance.h"
#include "desktop/command_runner.h"

#include <QWidget>

namespace quillon {

class OverviewPanel : public QWidget {
    Q_OBJECT

public:
    OverviewPanel(CommandRunner& runner, Appearance& appearance, QWidget* parent = nullptr);

    /// Draws what the screen holds now.
    void refresh();

private:
    CommandRunner& runner_;
    Appearance& appearance_;
};

} // namespace quillon
