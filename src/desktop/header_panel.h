// The heading of the race on show.
#pragma once

#include "desktop/appearance.h"

#include <QLabel>
#include <QWidget>

namespace quillon {

class HeaderPanel : public QWidget {
    Q_OBJECT

public:
    explicit HeaderPanel(Appearance& appearance, QWidget* parent = nullptr);

    void refresh();

private:
    void refreshNotes();
    void lay();

    Appearance& appearance_;
    QLabel* race_;
    QLabel* notes_;
    QLabel* conditions_; ///< post time, gait, distance, purse, class rating
    QLabel* track_;      ///< track, date and the track's description
    QLabel* classText_;
    QLabel* wagering_;
};

} // namespace quillon
