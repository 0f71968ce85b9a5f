// The lists that a command opens and a pick closes: saved cards, tracks, drivers.
#pragma once

#include "desktop/appearance.h"
#include "desktop/command_runner.h"

#include <QDialog>

namespace quillon {

/// Shows whichever of the lists the screen shows, over the window and without blocking it.
class ChoiceDialog : public QDialog {
    Q_OBJECT

public:
    ChoiceDialog(CommandRunner& runner, Appearance& appearance, QWidget* parent = nullptr);

    /// Opens and closes with the lists of the screen.
    void refresh();

private:
    CommandRunner& runner_;
    Appearance& appearance_;
};

} // namespace quillon
