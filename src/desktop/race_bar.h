// The row above everything: the Start button, the arrows, and a button for each race.
#pragma once

#include "desktop/appearance.h"
#include "desktop/command_runner.h"
#include "desktop/mark_texts.h"

#include <QPushButton>
#include <QToolButton>
#include <QWidget>

#include <vector>

namespace quillon {

class RaceBar : public QWidget {
    Q_OBJECT

public:
    RaceBar(CommandRunner& runner, Appearance& appearance, QWidget* parent = nullptr);

    void refresh();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void buildRaces();
    void lay();
    void placeRaces();
    int widthOfRaces(const std::vector<QPushButton*>& races) const;

    CommandRunner& runner_;
    Appearance& appearance_;
    QPushButton* start_;
    QToolButton* previous_;
    QToolButton* next_;
    ChangedRaces changed_;
    QWidget* strip_;
    std::vector<QPushButton*> races_; ///< race n at n - 1, in the strip
};

} // namespace quillon
