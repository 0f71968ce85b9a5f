// The lists that a command opens and a pick closes: saved cards, tracks, drivers.
#pragma once

#include "desktop/appearance.h"
#include "desktop/command_runner.h"
#include "screen/screen.h"

#include <QAbstractTableModel>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSortFilterProxyModel>
#include <QStackedWidget>
#include <QTreeView>

#include <vector>

namespace quillon {

/// The lines of a list of the screen, a row each. Lines that are names of cards tell track and date in
/// columns of their own.
class ChoiceModel : public QAbstractTableModel {
    Q_OBJECT

public:
    /// Sorts by what the date column holds as by time.
    static constexpr int sortRole = Qt::UserRole;

    ChoiceModel(const ChoiceList& list, bool ofCards, QObject* parent);

    /// Takes up the lines where they have changed.
    void refresh();

    const Text& line(int row) const { return lines_[static_cast<std::size_t>(row)]; }

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

private:
    QString cell(const Text& line, int column) const;

    const ChoiceList& list_;
    bool ofCards_;
    std::vector<Text> lines_;
};

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
