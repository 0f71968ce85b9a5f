// The past lines of one entry, with the buttons that take one of them.
#pragma once

#include "desktop/appearance.h"
#include "desktop/command_runner.h"
#include "results/race_display.h"

#include <QFrame>
#include <QLabel>
#include <QPushButton>

#include <vector>

namespace quillon {

class CellTableView;
class RowButtons;
class ShadeLegend;

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

} // namespace quillon
