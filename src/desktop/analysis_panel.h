// The tables of the analysis: summary, betting profile, tracks, picks.
#pragma once

#include "desktop/appearance.h"
#include "desktop/command_runner.h"
#include "screen/screen.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QStackedWidget>
#include <QWidget>

#include <vector>

namespace quillon {

class CellTableView;

/// Shows the one of the tables that the screen shows, a heading above it and its buttons below.
class AnalysisPanel : public QWidget {
    Q_OBJECT

public:
    AnalysisPanel(CommandRunner& runner, Appearance& appearance, QWidget* parent = nullptr);

    /// Draws what the screen holds now.
    void refresh();

private:
    struct Page {
        QWidget* widget;
        std::vector<CellTableView*> tables{}; ///< the first takes the keys when the page is opened
    };

    void buildPage(std::size_t at);
    void buildButtons(QHBoxLayout& row);
    void refreshButtons();
    void lay();

    CommandRunner& runner_;
    Appearance& appearance_;
    QLabel* heading_;
    QStackedWidget* stack_;
    std::vector<Page> pages_;           ///< as the rows of the table of pages
    std::vector<QPushButton*> buttons_; ///< as the rows of the table of buttons
};

} // namespace quillon
