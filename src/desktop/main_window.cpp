#include "desktop/main_window.h"

#include "card/race_card.h"
#include "day/changes.h"
#include "day/re_calculation.h"
#include "desktop/analysis_panel.h"
#include "desktop/before_commands.h"
#include "desktop/board_panel.h"
#include "desktop/card_finder.h"
#include "desktop/card_keeping.h"
#include "desktop/card_printing.h"
#include "desktop/card_texts.h"
#include "desktop/choice_dialog.h"
#include "desktop/desktop_ports.h"
#include "desktop/empty_panel.h"
#include "desktop/export_menu.h"
#include "desktop/find_bar.h"
#include "desktop/header_panel.h"
#include "desktop/help_items.h"
#include "desktop/menus.h"
#include "desktop/notice_bar.h"
#include "desktop/overview_panel.h"
#include "desktop/past_lines_panel.h"
#include "desktop/race_bar.h"
#include "desktop/race_list_panel.h"
#include "desktop/race_page.h"
#include "desktop/race_panel.h"
#include "desktop/shown_text.h"
#include "desktop/side_docks.h"
#include "desktop/stars_window.h"
#include "desktop/status_line.h"
#include "desktop/table_import.h"
#include "desktop/view_menu.h"
#include "desktop/window_look.h"
#include "desktop/window_notices.h"
#include "results/on_show.h"

#include <QApplication>
#include <QCloseEvent>
#include <QSessionManager>
#include <QStatusBar>
#include <QVBoxLayout>

namespace quillon {

MainWindow::MainWindow(Appearance& appearance, QWidget* parent)
    : QMainWindow{parent}, appearance_{appearance}, ports_{new DesktopPorts{*this, appearance}} {
    setObjectName("MainWindow");
    buildPages();
    buildDocks();
    buildMenus();
    connectPanels();
    connectFinder();
    stars_ = new StarsWindow{runner_, appearance_, this};
    choices_ = new ChoiceDialog{runner_, appearance_, this};
    buildNotices();
    watchSession();
    connect(&runner_, &CommandRunner::aboutToRun, ports_, &DesktopPorts::commandBegins);
    connect(&runner_, &CommandRunner::ran, ports_, &DesktopPorts::commandEnded);
    connect(ports_, &DesktopPorts::aboutToTell, this, &MainWindow::refresh);
    connect(&runner_, &CommandRunner::ran, this, &MainWindow::refresh);
    connect(&runner_, &CommandRunner::ran, this, &MainWindow::takeUpEnd, Qt::QueuedConnection);
    restoreLook(*this, appearance_);
    refresh();
}

// A box that has the focus hands in its text when it loses it: here, while there still is all that it needs.
MainWindow::~MainWindow() {
    hide();
    delete ports_;
}

void MainWindow::buildPages() {
    auto* centre = new QWidget{this};
    auto* column = new QVBoxLayout{centre};
    column->setContentsMargins(6, 4, 6, 2);
    column->setSpacing(4);
    raceBar_ = new RaceBar{runner_, appearance_, centre};
    bar_ = new NoticeBar{appearance_, centre};
    pages_ = new QStackedWidget{centre};
    find_ = new FindBar{centre};
    column->addWidget(raceBar_);
    column->addWidget(bar_);
    column->addWidget(pages_, 1);
    column->addWidget(find_);

    racePage_ = new RacePage{appearance_, pages_};
    header_ = new HeaderPanel{appearance_, racePage_->inside()};
    race_ = new RacePanel{runner_, appearance_, racePage_->inside()};
    board_ = new BoardPanel{runner_, appearance_, racePage_->inside()};
    pastLines_ = new PastLinesPanel{runner_, appearance_, racePage_->inside()};
    racePage_->arrange({header_, race_, board_, pastLines_});

    analysis_ = new AnalysisPanel{runner_, appearance_, pages_};
    overview_ = new OverviewPanel{runner_, appearance_, pages_};
    empty_ = new EmptyPanel{runner_, appearance_, pages_};
    for (QWidget* page : {static_cast<QWidget*>(racePage_), static_cast<QWidget*>(analysis_),
                          static_cast<QWidget*>(overview_), static_cast<QWidget*>(empty_)})
        pages_->addWidget(page);
    setCentralWidget(centre);
    statusBar(); // hints of the menus
}

void MainWindow::buildDocks() {
    raceListDock_ = new QDockWidget{tr("Races"), this};
    raceListDock_->setObjectName("RaceListDock");
    raceListDock_->setAllowedAreas(Qt::LeftDockWidgetArea | Qt::RightDockWidgetArea);
    raceList_ = new RaceListPanel{runner_, appearance_, raceListDock_};
    raceListDock_->setWidget(raceList_);
    addDockWidget(Qt::LeftDockWidgetArea, raceListDock_);
    raceListDock_->hide();
    docks_ = new SideDocks{runner_, appearance_, *this};
    docks_->follow(*race_, *pastLines_);
}

void MainWindow::connectPanels() {
    const auto putOverviewAway = [this] { showOverview(false); };
    connect(overview_, &OverviewPanel::raceOpened, this, putOverviewAway);
    connect(raceList_, &RaceListPanel::raceOpened, this, putOverviewAway);
    connect(board_, &BoardPanel::typingDropped, this, [this](int race) {
        status_->tell(
            tr("What was typed for race %1 was not kept: leave a race with the arrows to keep it").arg(race));
    });
}

// The card is looked through from its race and from its overview; the analysis has tables of its own.
void MainWindow::connectFinder() {
    finder_ = new CardFinder{runner_, this};
    connect(finder_, &CardFinder::reached, this, [this](int row, int column) {
        showOverview(false);
        race_->goTo(row, column);
        racePage_->ensureWidgetVisible(race_);
    });
    find_->searchFirst(
        {[this] { return pages_->currentWidget() == racePage_ || pages_->currentWidget() == overview_; },
         [this](const QString& text, bool backwards) { return finder_->find(text, backwards); }});
}

void MainWindow::buildMenus() {
    menus_ = new Menus{*menuBar(), runner_, this};
    buildEditMenu();
    buildExportMenu();
    view_ = new ViewMenu{appearance_, *ports_, *raceListDock_, this};
    docks_->addItems(*view_);
    menuBar()->insertMenu(menus_->menu(Menu::tools)->menuAction(), view_);
    connect(view_, &ViewMenu::overviewWanted, this, &MainWindow::showOverview);
    printCard_ = new CardPrintItem{*menus_->menu(Menu::file), menus_->action(CommandId::Exit_QL), *this};
    help_ = new HelpItems{*menus_->menu(Menu::help), appearance_, [this] { return guidesPlace(); }, *this};
}

void MainWindow::buildEditMenu() {
    QMenu* edit = menus_->menu(Menu::edit);
    edit->addSeparator();
    const auto add = [&](const QString& text, const QKeySequence& keys, const QString& hint, auto&& slot) {
        QAction* action = edit->addAction(text);
        action->setShortcut(keys);
        action->setStatusTip(hint);
        connect(action, &QAction::triggered, this, slot);
    };
    add(tr("&Find..."), QKeySequence::Find, tr("Find a text in the table"), [this] { find_->open(); });
    add(tr("Find &Next"), QKeySequence{"Ctrl+G"}, tr("Find the text once more"),
        [this] { find_->findNext(); });
}

void MainWindow::buildExportMenu() {
    exporting_ = new ExportMenu{runner_, this};
    QMenu* file = menus_->menu(Menu::file);
    file->insertMenu(menus_->action(CommandId::Exit_QL), exporting_);
    connect(exporting_, &ExportMenu::written, this,
            [this](const QString& path) { status_->tell(tr("Written: %1").arg(path)); });
    connect(exporting_, &ExportMenu::notWritten, this, [this](const QString& why) { status_->tell(why); });
}

void MainWindow::buildNotices() {
    auto* faults = new QPushButton{this};
    statusBar()->addPermanentWidget(faults);
    connect(faults, &QPushButton::clicked, help_, &HelpItems::openJournal);
    status_ = new StatusLine{runner_, *ports_, *statusBar()};
    notices_ = new WindowNotices{runner_, *bar_, *faults};
    new CardKeeping{runner_, *bar_};
    before_ = new BeforeCommands{runner_, *this};
    auto* import = new TableImport{*menus_->menu(Menu::file), menus_->action(CommandId::RecallRaceCard),
                                   runner_, *bar_, *this};
    connect(import, &TableImport::imported, this, &MainWindow::refresh);
    connect(before_, &BeforeCommands::refused, notices_, &WindowNotices::tellRefusal);
    ports_->setLineAsked([this]() -> std::optional<LineNumberAsked> {
        const LineNumbers numbers = linesOnShow();
        if (runner_.running() != CommandId::Command7 || numbers.last < numbers.first) return std::nullopt;
        return LineNumberAsked{shown(horseIn(raceViewOnShow(), theScreen.currentEntry)),
                               static_cast<int>(numbers.first), static_cast<int>(numbers.last)};
    });
}

// By the headings of the guide, which a test looks up.
QString MainWindow::guidesPlace() const {
    if (const QString place = docks_->guidesPlace(); !place.isEmpty()) return place;
    if (theScreen.summaryVisible) return "What the card earned";
    if (theScreen.profileVisible) return "Betting profiles";
    if (theScreen.tracksVisible || theScreen.picksVisible) return "Tracks and picks";
    if (!cardIsOpen()) return "Start Quillon";
    if (board_->isAncestorOf(QApplication::focusWidget())) return "Record the results";
    if (theScreen.pastPerformanceOpen && !overviewWanted_) return "Past lines, and taking another one";
    return "Read the races";
}

// The desktop ends the session: the same question as at every other end.
void MainWindow::watchSession() {
    connect(qApp, &QGuiApplication::commitDataRequest, this, [this](QSessionManager& session) {
        if (!session.allowsInteraction()) return;
        if (!before_->mayLoseCard()) session.cancel();
        session.release();
    });
}

// With Qt's mark of what is not saved.
void MainWindow::titleWindow() {
    const bool isCard = cardIsOpen() && !card.cardFileName.empty();
    setWindowTitle(isCard ? cardTitle() + "[*]" : shown(theScreen.caption));
    setWindowModified(isCard && changes.unsaved() > 0);
}

QWidget* MainWindow::pageWanted() const {
    const bool showsTable = theScreen.summaryVisible || theScreen.profileVisible || theScreen.tracksVisible ||
                            theScreen.picksVisible;
    if (showsTable) return analysis_;
    if (!cardIsOpen()) return empty_;
    return overviewWanted_ ? static_cast<QWidget*>(overview_) : racePage_;
}

void MainWindow::showOverview(bool wanted) {
    overviewWanted_ = wanted;
    refresh();
}

// Whoever walks on to another race wants to see it.
void MainWindow::leaveOverviewWithTheRace() {
    if (theScreen.header.race != raceShown_) overviewWanted_ = false;
    raceShown_ = theScreen.header.race;
}

void MainWindow::refresh() {
    leaveOverviewWithTheRace();
    titleWindow();
    notices_->refresh();
    menus_->refresh();
    printCard_->refresh();
    raceBar_->refresh();
    header_->refresh();
    race_->refresh();
    board_->refresh();
    pastLines_->refresh();
    analysis_->refresh();
    overview_->refresh();
    empty_->refresh();
    raceList_->refresh();
    docks_->refresh();
    exporting_->refresh();
    stars_->refresh();
    choices_->refresh();
    view_->refresh(overviewWanted_);
    pages_->setCurrentWidget(pageWanted());
}

void MainWindow::takeUpEnd() {
    if (ports_->ended()) close();
}

void MainWindow::closeEvent(QCloseEvent* event) {
    if (!ports_->ended()) runner_.run(CommandId::CloseWindow);
    if (!ports_->ended()) return event->ignore();
    keepLook(*this, appearance_);
    event->accept();
    stars_->hide(); // its close control goes back to the races
    choices_->hide();
    QApplication::quit();
}

} // namespace quillon
