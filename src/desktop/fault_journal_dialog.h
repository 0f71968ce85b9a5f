// What the failure policy passed over, for the user who asks: readable, and to be copied.
#pragma once

#include "desktop/appearance.h"
#include "desktop/cell_table_view.h"

#include <QDialog>

class QLabel;

namespace quillon {

class FaultJournalDialog : public QDialog {
    Q_OBJECT

public:
    explicit FaultJournalDialog(Appearance& appearance, QWidget* parent = nullptr);
    ~FaultJournalDialog() override;

    /// Takes up the journal as it stands, the newest line at the bottom and in sight.
    void refresh();

    /// All lines on show: step, tab, what failed.
    QString allText() const;

    /// Writes them to a file as UTF-8, wherever the user wants it. False where it can't be written.
    bool saveTo(const QString& path) const;

private:
    void build();
    void copy();
    void askAndSave();

    Appearance& appearance_;
    Grid faults_; ///< the journal as it stood at the last refresh
    QLabel* counts_ = nullptr;
    CellTableView* table_ = nullptr;
};

} // namespace quillon
