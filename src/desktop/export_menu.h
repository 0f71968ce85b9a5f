// File > Export: the tables on show, written to files that spreadsheets and other programs read.
#pragma once

#include "desktop/command_runner.h"

#include <QAction>
#include <QMenu>

#include <functional>
#include <vector>

namespace quillon {

class ExportMenu : public QMenu {
    Q_OBJECT

public:
    ExportMenu(CommandRunner& runner, QWidget* window);

    /// Tables that are not on show are disabled.
    void refresh();

    /// Asks where to; empty where the user thinks better of it. The system's own dialog, unless a test answers.
    std::function<QString(const QString& suggested)> askForFile;

signals:
    void written(const QString& path);
    void notWritten(const QString& why);

private:
    void exportTable(std::size_t item);
    QString askBySystem(const QString& suggested);

    CommandRunner& runner_;
    QWidget* window_;
    std::vector<QAction*> actions_; ///< as the rows of the table of items
};

} // namespace quillon
