// Another day's tables from the vendor: dropped on the window, or picked in the File menu.
#pragma once

#include "desktop/command_runner.h"
#include "desktop/notice_bar.h"

#include <QAction>
#include <QMainWindow>
#include <QMenu>
#include <QObject>
#include <QStringList>

namespace quillon {

struct CheckedCard;

class TableImport : public QObject {
    Q_OBJECT

public:
    /// Puts its items into the menu, in front of `before`, and takes what is dropped on the window.
    TableImport(QMenu& file, QAction* before, CommandRunner& runner, NoticeBar& bar, QMainWindow& window);

    /// Checks the tables of these folders, archives and tables, asks, and puts them into the vendor's folder.
    void import(const QStringList& paths);

signals:
    void imported();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void addItems(QMenu& file, QAction* before);
    void askForFiles();
    void askForFolder();
    void refuse(const QString& sentence);
    bool confirm(const CheckedCard& card);
    void offerStart(const QString& card);

    CommandRunner& runner_;
    NoticeBar& bar_;
    QMainWindow& window_;
};

} // namespace quillon
