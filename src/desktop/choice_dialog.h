// The lists that a command opens and a pick closes: saved cards, tracks, drivers.
#pragma once

#include "desktop/appearance.h"
#include "desktop/choice_model.h"
#include "desktop/command_runner.h"
#include "screen/screen.h"

#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSortFilterProxyModel>
#include <QStackedWidget>
#include <QTreeView>

#include <vector>

namespace quillon {

/// Shows the list of the screen that was opened last, over the window and without blocking it.
class ChoiceDialog : public QDialog {
    Q_OBJECT

public:
    ChoiceDialog(CommandRunner& runner, Appearance& appearance, QWidget* parent = nullptr);

    /// Opens and closes with the lists of the screen.
    void refresh();

    /// Leaves the list: by its "EXIT" where it has one. A list without one waits behind a button of the
    /// status bar.
    void reject() override;
    void accept() override; ///< picks the current line

    QSize sizeHint() const override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Page {
        ChoiceList Screen::*list;
        CommandId command; ///< that a pick sends
        QString empty;     ///< shown in place of a list without lines
        ChoiceModel* lines;
        QSortFilterProxyModel* found;
        QTreeView* view;
        bool wasVisible = false;
        bool waits = false; ///< put aside without a pick
    };

    Page& addPage(ChoiceList Screen::*list, CommandId command, const QString& empty);
    void buildPages();
    void buildFrame();
    void buildWaitingButton();
    Page* pageWanted();
    void openPage(Page& page);
    void pick(Page& page, const QModelIndex& index);
    void find(const QString& text);
    void selectFirst(Page& page);
    void goToTodaysDriver(Page& page);
    void showWhose();
    void showState();
    void lay();

    CommandRunner& runner_;
    Appearance& appearance_;
    QLabel* whose_; ///< the entry whose driver is changed
    QLineEdit* filter_;
    QStackedWidget* stack_;
    QLabel* empty_;
    QPushButton* pick_ = nullptr;
    QPushButton* cancel_ = nullptr;
    QPushButton* waiting_ = nullptr;
    std::vector<Page> pages_;
    Page* current_ = nullptr;
};

} // namespace quillon
