// Past lines: those of the current entry in their frame, or those of the whole race.
#pragma once

#include "desktop/appearance.h"
#include "desktop/command_runner.h"
#include "results/race_display.h"
#include "screen/screen.h"

#include <QFrame>
#include <QLabel>
#include <QPushButton>
#include <QStackedWidget>
#include <QWidget>

#include <vector>

namespace quillon {

class CellTableView;
class RowButtons;

/// The two shades of past lines, and the days that they reach back to.
class ShadeLegend : public QWidget {
    Q_OBJECT

public:
    explicit ShadeLegend(QWidget* parent = nullptr);

    void showFor(const Grid& lines);
    void setTextFont(const QFont& font);

private:
    QLabel* recent_;
    QLabel* older_;
};

/// The past lines of one entry, and the buttons that take one of them.
class EntryLinesFrame : public QFrame {
    Q_OBJECT

public:
    EntryLinesFrame(CommandRunner& runner, Appearance& appearance, QWidget* parent = nullptr);

    void refresh();

private:
    QWidget* buildHead();
    void buildTable();
    void buildLineButtons();
    void lay();
    void refreshButton(int row, const LineInUse& used);
    void refreshUse(const LineInUse& used);

    CommandRunner& runner_;
    Appearance& appearance_;
    QLabel* heading_ = nullptr;
    QLabel* use_ = nullptr; ///< tells the line in use
    ShadeLegend* shades_ = nullptr;
    QPushButton* edit_ = nullptr;
    QPushButton* close_ = nullptr;
    CellTableView* table_ = nullptr;
    RowButtons* buttons_ = nullptr;
    std::vector<QPushButton*> lines_; ///< of row n at n - 1
};

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
