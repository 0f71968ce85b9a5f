// The window: it renders the screen and sends back commands with an index. No rule of racing lives here.
#pragma once

#include "desktop/appearance.h"
#include "desktop/command_runner.h"

#include <QDockWidget>
#include <QMainWindow>
#include <QStackedWidget>

namespace quillon {

class AnalysisPanel;
class BeforeCommands;
class BoardPanel;
class CardFinder;
class CardPrintItem;
class ChoiceDialog;
class DesktopPorts;
class EmptyPanel;
class ExportMenu;
class FindBar;
class HeaderPanel;
class HelpItems;
class Menus;
class NoticeBar;
class OverviewPanel;
class PastLinesPanel;
class RaceBar;
class RaceListPanel;
class RacePage;
class RacePanel;
class SideDocks;
class StarsWindow;
class StatusLine;
class ViewMenu;
class WindowNotices;

class MainWindow : public QMainWindow {
    Q_OBJECT

public:
    explicit MainWindow(Appearance& appearance, QWidget* parent = nullptr);
    ~MainWindow() override;

    CommandRunner& runner() { return runner_; }
    Menus& menus() { return *menus_; }
    BeforeCommands& before() { return *before_; }
    ExportMenu& exporting() { return *exporting_; }

    /// Draws everything that the screen holds now.
    void refresh();

    bool overviewShown() const { return overviewWanted_; }
    void showOverview(bool wanted);

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void buildPages();
    void buildDocks();
    void buildEditMenu();
    void buildExportMenu();
    void buildNotices();
    void watchSession();
    void titleWindow();
    void buildMenus();
    void connectPanels();
    void connectFinder();
    QString guidesPlace() const;
    void takeUpEnd();
    void leaveOverviewWithTheRace();
    QWidget* pageWanted() const;

    Appearance& appearance_;
    CommandRunner runner_;
    DesktopPorts* ports_ = nullptr;
    BeforeCommands* before_ = nullptr;
    NoticeBar* bar_ = nullptr;
    WindowNotices* notices_ = nullptr;
    Menus* menus_ = nullptr;
    StatusLine* status_ = nullptr;
    ViewMenu* view_ = nullptr;
    HelpItems* help_ = nullptr;
    CardPrintItem* printCard_ = nullptr;
    RaceBar* raceBar_ = nullptr;
    HeaderPanel* header_ = nullptr;
    RacePanel* race_ = nullptr;
    BoardPanel* board_ = nullptr;
    PastLinesPanel* pastLines_ = nullptr;
    AnalysisPanel* analysis_ = nullptr;
    OverviewPanel* overview_ = nullptr;
    EmptyPanel* empty_ = nullptr;
    QDockWidget* raceListDock_ = nullptr;
    RaceListPanel* raceList_ = nullptr;
    SideDocks* docks_ = nullptr;
    ExportMenu* exporting_ = nullptr;
    StarsWindow* stars_ = nullptr;
    ChoiceDialog* choices_ = nullptr;
    FindBar* find_ = nullptr;
    CardFinder* finder_ = nullptr;
    QStackedWidget* pages_ = nullptr;
    RacePage* racePage_ = nullptr;
    bool overviewWanted_ = false;
    Text raceShown_; ///< at the last refresh
};

} // namespace quillon
