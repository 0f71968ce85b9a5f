// What the entries of the race on show are worth: chances, fair odds, and the odds on offer that beat them.
#pragma once

#include "analysis/race_worth.h"
#include "analysis/saved_races.h"
#include "desktop/appearance.h"

#include <QLabel>
#include <QSpinBox>
#include <QTableWidget>
#include <QWidget>

#include <vector>

namespace quillon {

class WorthPanel : public QWidget {
    Q_OBJECT

public:
    explicit WorthPanel(Appearance& appearance, QWidget* parent = nullptr);

    /// Reads the saved cards where one has changed, and draws the race on show.
    void refresh();

    QSize sizeHint() const override;

private:
    void buildTable();
    void buildMargin();
    void lay();
    void fillTable();
    void fillRow(int row);
    void markRow(int row);
    void takeOdds(const QTableWidgetItem* cell);
    Text oddsIn(int row) const;

    Appearance& appearance_;
    SavedFit saved_;
    std::vector<WorthRow> rows_;
    int race_ = 0;
    QLabel* heading_;
    QTableWidget* table_;
    QLabel* marginLabel_;
    QSpinBox* margin_;
    QLabel* quality_;
};

/// How good the fit is, in a sentence or two: whether to believe the chances.
QString qualityOf(const Fit& fit);

} // namespace quillon
