#include "desktop/help_items.h"

#include "desktop/fault_journal_dialog.h"
#include "desktop/guide_window.h"
#include "desktop/keys_dialog.h"

#include <QAction>
#include <QMenuBar>

#include <utility>

namespace quillon {

HelpItems::HelpItems(QMenu& help, Appearance& appearance, std::function<QString()> guidesPlace,
                     QMainWindow& window)
    : QObject{&window}, appearance_{appearance}, window_{window}, guidesPlace_{std::move(guidesPlace)} {
    QAction* guide = help.addAction(tr("User's &Guide"), this, &HelpItems::openGuide);
    guide->setObjectName("UsersGuide");
    guide->setShortcut(QKeySequence{Qt::Key_F1});
    guide->setStatusTip(tr("The guide, open at what is on show"));
    QAction* keys = help.addAction(tr("&Keys..."), this, &HelpItems::openKeys);
    keys->setObjectName("KeysOfTheWindow");
    keys->setStatusTip(tr("All keys, and what they do"));
    help.insertActions(help.actions().front(), {guide, keys});
    help.addSeparator();
    QAction* journal = help.addAction(tr("&Fault Journal..."), this, &HelpItems::openJournal);
    journal->setObjectName("FaultJournal");
    journal->setStatusTip(tr("What was passed over in tables and files since the start"));
}

void HelpItems::openGuide() {
    if (!guide_) guide_ = new GuideWindow{appearance_, &window_};
    const QString place = guidesPlace_(); // by the widget that has the focus
    guide_->show();
    guide_->openAt(place);
    guide_->raise();
    guide_->activateWindow();
}

void HelpItems::openKeys() {
    auto* dialog = new KeysDialog{*window_.menuBar(), &window_};
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->show();
}

void HelpItems::openJournal() {
    if (!journal_) journal_ = new FaultJournalDialog{appearance_, &window_};
    journal_->refresh();
    journal_->show();
    journal_->raise();
    journal_->activateWindow();
}

} // namespace quillon
