// The card at a glance: a race a row; a click opens the race.
#pragma once

#include "desktop/appearance.h"
#include "desktop/cell_table_view.h"
#include "desktop/command_runner.h"
#include "desktop/mark_texts.h"
#include "screen/screen.h"

#include <QLabel>
#include <QWidget>

namespace quillon {

class OverviewPanel : public QWidget {
    Q_OBJECT

public:
    OverviewPanel(CommandRunner& runner, Appearance& appearance, QWidget* parent = nullptr);
    ~OverviewPanel() override;

    /// Draws what the card holds now.
    void refresh();

signals:
    void raceOpened(); ///< the race is on show: the overview can be put away

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    void open(const QModelIndex& index);
    void goToRaceOnShow();
    void lay();
    void refreshMarks();

    CommandRunner& runner_;
    Appearance& appearance_;
    ChangedRaces changed_;
    Grid races_;
    QLabel* heading_;
    QLabel* hint_;
    CellTableView* table_;
};

} // namespace quillon
