// The stars profile in its window of its own: three lists that are gone through one by one, the table, and
// eight fields.
#pragma once

#include "desktop/appearance.h"
#include "desktop/command_runner.h"

#include <QWidget>

namespace quillon {

class StarsWindow : public QWidget {
    Q_OBJECT

public:
    StarsWindow(CommandRunner& runner, Appearance& appearance, QWidget* parent = nullptr);

    /// Draws what the screen holds now; opens and closes the window with it.
    void refresh();

private:
    CommandRunner& runner_;
    Appearance& appearance_;
};

} // namespace quillon
