// The tables of the analysis: summary, betting profile, tracks, picks.
#pragma once

#include "desktop/appearance.h"
#include "desktop/command_runner.h"

#include <QWidget>

namespace quillon {

class AnalysisPanel : public QWidget {
    Q_OBJECT

public:
    AnalysisPanel(CommandRunner& runner, Appearance& appearance, QWidget* parent = nullptr);

    /// Draws what the screen holds now.
    void refresh();

private:
    CommandRunner& runner_;
    Appearance& appearance_;
};

} // namespace quillon
