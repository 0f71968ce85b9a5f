// Past lines: those of the current entry in their frame, or those of the whole race.
#pragma once

#include "desktop/appearance.h"
#include "desktop/command_runner.h"

#include <QLabel>
#include <QStackedWidget>
#include <QWidget>

namespace quillon {

class CellTableView;
class EntryLinesFrame;
class ShadeLegend;

class PastLinesPanel : public QWidget {
    Q_OBJECT

public:
    PastLinesPanel(CommandRunner& runner, Appearance& appearance, QWidget* parent = nullptr);

    /// Draws what the screen holds now.
    void refresh();

private:
    QWidget* buildRacePage();
    void refreshRacePage();
    void lay();

    Appearance& appearance_;
    QStackedWidget* pages_ = nullptr;
    EntryLinesFrame* entry_ = nullptr;
    QWidget* racePage_ = nullptr;
    QLabel* raceHeading_ = nullptr;
    ShadeLegend* raceShades_ = nullptr;
    CellTableView* raceTable_ = nullptr;
    int race_ = 0; ///< whose lines are shown; 0 none
};

} // namespace quillon
