// The entries of the race on show, with the buttons that stand beside their rows.
#pragma once

#include "desktop/appearance.h"
#include "desktop/command_runner.h"
#include "results/entry_marks.h"

#include <QPushButton>
#include <QWidget>

#include <vector>

namespace quillon {

class CellTableView;
class RowButtons;

class RacePanel : public QWidget {
    Q_OBJECT

public:
    RacePanel(CommandRunner& runner, Appearance& appearance, QWidget* parent = nullptr);

    /// Draws what the screen holds now.
    void refresh();

    /// Makes a cell of the table the current one, and brings it into sight.
    void goTo(int row, int column);

protected:
    void resizeEvent(QResizeEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void buildTable();
    void buildEntryButtons();
    void buildScratchButtons();
    void buildHeatButtons();
    QPushButton* rowButton(int column, int row, CommandId id);

    void refreshTable();
    void refreshMarks();
    void refreshButtons();
    void holdHeight();

    void edit(int row, int column, const Text& text);
    void askForDriver(int row);
    bool enterOn(int row, int column, int key);

    CommandRunner& runner_;
    Appearance& appearance_;
    CellTableView* table_ = nullptr;
    RowButtons* buttons_ = nullptr;
    std::vector<QPushButton*> entries_;   ///< of row i at i - 1
    std::vector<QPushButton*> scratches_; ///< of row i at i, of the head at 0
    std::vector<QPushButton*> heats_;     ///< of row i at i - 1
    int heatColumn_ = 0;
    int race_ = 0;                  ///< whose view is shown
    std::vector<EntryMarks> marks_; ///< of row i at i
    bool handingIn_ = false;        ///< an edited cell is on its way
};

} // namespace quillon
