// The window's own items of the Help menu: the guide, the keys, the fault journal.
#pragma once

#include "desktop/appearance.h"

#include <QMainWindow>
#include <QMenu>
#include <QObject>

#include <functional>

namespace quillon {

class FaultJournalDialog;
class GuideWindow;

class HelpItems : public QObject {
    Q_OBJECT

public:
    /// The guide opens at the heading that `guidesPlace` gives: the one about what is on show.
    HelpItems(QMenu& help, Appearance& appearance, std::function<QString()> guidesPlace, QMainWindow& window);

    void openJournal();

private:
    void openGuide();
    void openKeys();

    Appearance& appearance_;
    QMainWindow& window_;
    std::function<QString()> guidesPlace_;
    GuideWindow* guide_ = nullptr;
    FaultJournalDialog* journal_ = nullptr;
};

} // namespace quillon
