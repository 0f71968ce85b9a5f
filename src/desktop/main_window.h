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
class ChangesPanel;
class CardFinder;
class ChoiceDialog;
class DesktopPorts;
class EmptyPanel;
class FaultJournalDialog;
class FindBar;
class GuideWindow;
class HeaderPanel;
class Menus;
class NoticeBar;
class OverviewPanel;
class PastLinesPanel;
class RaceBar;
class RaceListPanel;
class RacePage;
class RacePanel;
class StarsWindow;
class WindowNotices;

/// The window's size at its first start: as designed, or as much as there is room for.
QSize firstSize(QSize designed, QSize room);

class MainWindow : public QMainWindow {
    Q_OBJECT

public:
    explicit MainWindow(Appearance& appearance, QWidget* parent = nullptr);
    ~MainWindow() override;

    CommandRunner& runner() { return runner_; }
    Menus& menus() { return *menus_; }
    DesktopPorts& outside() { return *ports_; }
    BeforeCommands& before() { return *before_; }

    /// Draws everything that the screen holds now.
    void refresh();

    bool overviewShown() const { return overviewWanted_; }
    void showOverview(bool wanted);

protected:
    void closeEvent(QCloseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void buildPages();
    void buildDocks();
    void buildChangesDock();
    void buildEditMenu();
    void showChanges(bool wanted);
    void putChangesBeside();
    void tell(const QString& text);
    void tellRecorded(CommandId id);
    void buildNotices();
    void watchSession();
    void openJournal();
    void titleWindow();
    void buildMenus();
    void connectPanels();
    void connectFinder();
    void buildViewMenu();
    void buildHelpMenu();
    void openGuide();
    QString guidesPlace() const;
    void restoreLook();
    void keepLook() const;
    void takeUpEnd();
    void tellSaved(CommandId id);
    void leaveOverviewWithTheRace();
    QWidget* pageWanted() const;

    Appearance& appearance_;
    CommandRunner runner_;
    DesktopPorts* ports_ = nullptr;
    BeforeCommands* before_ = nullptr;
    NoticeBar* bar_ = nullptr;
    WindowNotices* notices_ = nullptr;
    Menus* menus_ = nullptr;
    RaceBar* raceBar_ = nullptr;
    HeaderPanel* header_ = nullptr;
    RacePanel* race_ = nullptr;
    BoardPanel* board_ = nullptr;
    PastLinesPanel* pastLines_ = nullptr;
    AnalysisPanel* analysis_ = nullptr;
    OverviewPanel* overview_ = nullptr;
    EmptyPanel* empty_ = nullptr;
    RaceListPanel* raceList_ = nullptr;
    ChangesPanel* changes_ = nullptr;
    StarsWindow* stars_ = nullptr;
    ChoiceDialog* choices_ = nullptr;
    FaultJournalDialog* journal_ = nullptr;
    GuideWindow* guide_ = nullptr;
    FindBar* find_ = nullptr;
    CardFinder* finder_ = nullptr;
    QStackedWidget* pages_ = nullptr;
    RacePage* racePage_ = nullptr;
    QAction* overviewAction_ = nullptr;
    QDockWidget* changesDock_ = nullptr;
    bool overviewWanted_ = false;
    Text raceShown_; ///< at the last refresh
    Text cardName_;  ///< its file, before the command that runs
};

} // namespace quillon
