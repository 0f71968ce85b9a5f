// The results board: selections, finish, the "Tote Board" with its dead-heat box, refunds.
#pragma once

#include "desktop/appearance.h"
#include "desktop/command_runner.h"

#include <QWidget>

namespace quillon {

class BoardPanel : public QWidget {
    Q_OBJECT

public:
    BoardPanel(CommandRunner& runner, Appearance& appearance, QWidget* parent = nullptr);

    /// Draws what the screen holds now.
    void refresh();

private:
    CommandRunner& runner_;
    Appearance& appearance_;
};

} // namespace quillon
