// What the user has changed on the card, newest first, and the program's selections beside his.
#pragma once

#include "desktop/appearance.h"
#include "desktop/command_runner.h"

#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QTableWidget>
#include <QWidget>

namespace quillon {

class ChangesPanel : public QWidget {
    Q_OBJECT

public:
    ChangesPanel(CommandRunner& runner, Appearance& appearance, QWidget* parent = nullptr);

    void refresh();

    QSize sizeHint() const override;

private:
    void buildList();
    void buildPlaces();
    void lay();
    void fillList();
    void fillPlaces();
    void offerWayBack();
    void showRaceOf(const QListWidgetItem* line);
    void goBack();

    CommandRunner& runner_;
    Appearance& appearance_;
    QListWidget* list_;
    QPushButton* back_;
    QLabel* heading_;
    QTableWidget* places_;
};

} // namespace quillon
