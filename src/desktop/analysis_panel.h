// The tables of the analysis: summary, betting profile, tracks, picks.
#pragma once

#include "desktop/appearance.h"
#include "desktop/cell_table_view.h"
#include "desktop/command_runner.h"
#include "screen/screen.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QStackedWidget>
#include <QWidget>

#include <array>
#include <vector>

namespace quillon {

/// Shows the one of the tables that the screen shows, a heading above it and its buttons below.
class AnalysisPanel : public QWidget {
    Q_OBJECT

public:
    AnalysisPanel(CommandRunner& runner, Appearance& appearance, QWidget* parent = nullptr);

    /// Draws what the screen holds now.
    void refresh();

private:
    struct Page {
        bool Screen::*visible;
        QString title;
        QWidget* widget;
        QWidget* table; ///< takes the keys when the page is opened
    };

    CellTableView* newTable(const char* name, const QString& accessibleName, const Grid& grid,
                            const CellRange& range, std::vector<int> widths);
    void buildSummary();
    void buildProfile();
    void buildTracks();
    void buildPicks();
    void buildButtons(QHBoxLayout& row);
    void refreshButtons();
    const Page* pageOnShow() const;
    void lay();

    CommandRunner& runner_;
    Appearance& appearance_;
    QLabel* heading_;
    QStackedWidget* stack_;
    std::vector<CellTableView*> tables_;
    std::vector<Page> pages_;
    std::vector<QPushButton*> buttons_; ///< as the rows of the table of buttons
};

} // namespace quillon
