// Past lines: those of the current entry in their frame, or those of the whole race. Where there is room for both, the
// entry's have a place of their own.
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

    /// The place of the entry's lines while they stand apart; hidden otherwise. To be laid out by the page.
    QWidget* entryPlace() { return entryPlace_; }
    void setEntryApart(bool apart);

signals:
    void entryShown(QWidget* lines); ///< an entry was opened, or another one
    void entryClosed();

private:
    QWidget* buildRacePage();
    void buildEntryPlace();
    void showPages();
    void tellEntry();
    void refreshRacePage();
    void lay();

    Appearance& appearance_;
    QStackedWidget* pages_ = nullptr;
    QStackedWidget* entryPlace_ = nullptr;
    QLabel* entryHint_ = nullptr; ///< while no entry is open
    bool isEntryApart_ = false;
    EntryLinesFrame* entry_ = nullptr;
    QWidget* racePage_ = nullptr;
    QLabel* raceHeading_ = nullptr;
    ShadeLegend* raceShades_ = nullptr;
    CellTableView* raceTable_ = nullptr;
    int race_ = 0;      ///< whose lines are shown; 0 none
    int openEntry_ = 0; ///< 0 none
};

} // namespace quillon
