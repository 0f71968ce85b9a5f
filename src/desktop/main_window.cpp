#include "desktop/main_window.h"

#include "card/race_card.h"
#include "day/changes.h"
#include "day/re_calculation.h"
#include "desktop/analysis_panel.h"
#include "desktop/before_commands.h"
#include "desktop/board_panel.h"
#include "desktop/card_finder.h"
#include "desktop/card_keeping.h"
#include "desktop/card_texts.h"
#include "desktop/cell_table_view.h"
#include "desktop/changes_panel.h"
#include "desktop/choice_dialog.h"
#include "desktop/desktop_ports.h"
#include "desktop/empty_panel.h"
#include "desktop/fault_journal_dialog.h"
#include "desktop/find_bar.h"
#include "desktop/guide_window.h"
#include "desktop/header_panel.h"
#include "desktop/keys_dialog.h"
#include "desktop/menus.h"
#include "desktop/notice_bar.h"
#include "desktop/overview_panel.h"
#include "desktop/past_lines_panel.h"
#include "desktop/race_bar.h"
#include "desktop/race_list_panel.h"
#include "desktop/race_page.h"
#include "desktop/race_panel.h"
#include "desktop/shown_text.h"
#include "desktop/stars_window.h"
#include "desktop/window_notices.h"
#include "results/on_show.h"

#include <QActionGroup>
#include <QApplication>
#include <QCloseEvent>
#include <QDockWidget>
#include <QKeyEvent>
#include <QScreen>
#include <QSessionManager>
#include <QSettings>
#include <QStatusBar>
#include <QStyle>
#include <QVBoxLayout>

#include <algorithm>
#include <array>

namespace quillon {
namespace {

// What the desktop puts round a window, as far as it can be told before the window is shown.
QSize frameSizeOf(const QWidget& window) {
    constexpr int border = 4; // pixels at each side
    const int title = window.style()->pixelMetric(QStyle::PM_TitleBarHeight, nullptr, &window);
    return {2 * border, title + 2 * border};
}

QString widthsOf(const CellTableView& table) { return "widths/" + table.objectName(); }

} // namespace

QSize firstSize(QSize designed, QSize room) { return designed.boundedTo(room); }

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
    connect(&runner_, &CommandRunner::aboutToRun, this, [this] { cardName_ = card.cardFileName; });
    connect(&runner_, &CommandRunner::aboutToRun, ports_, &DesktopPorts::commandBegins);
    connect(&runner_, &CommandRunner::ran, ports_, &DesktopPorts::commandEnded);
    connect(ports_, &DesktopPorts::couldNot, this,
            [this](const QString& what) { statusBar()->showMessage(what); });
    connect(ports_, &DesktopPorts::aboutToTell, this, &MainWindow::refresh);
    connect(ports_, &DesktopPorts::noted, this, &MainWindow::tell);
    connect(&runner_, &CommandRunner::ran, this, &MainWindow::tellSaved);
    connect(&runner_, &CommandRunner::ran, this, &MainWindow::tellRecorded);
    connect(&runner_, &CommandRunner::ran, this, &MainWindow::refresh);
    connect(&runner_, &CommandRunner::ran, this, &MainWindow::takeUpEnd, Qt::QueuedConnection);
    resize(firstSize({appearance_.pixels(theScreen.width), appearance_.pixels(theScreen.height)},
                     screen()->availableGeometry().size() - frameSizeOf(*this)));
    restoreLook();
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
    auto* dock = new QDockWidget{tr("Races"), this};
    dock->setObjectName("RaceListDock");
    dock->setAllowedAreas(Qt::LeftDockWidgetArea | Qt::RightDockWidgetArea);
    raceList_ = new RaceListPanel{runner_, appearance_, dock};
    dock->setWidget(raceList_);
    addDockWidget(Qt::LeftDockWidgetArea, dock);
    dock->hide();
    buildChangesDock();
}

void MainWindow::buildChangesDock() {
    changesDock_ = new QDockWidget{tr("Changes"), this};
    changesDock_->setObjectName("ChangesDock");
    changes_ = new ChangesPanel{runner_, appearance_, changesDock_};
    changesDock_->setWidget(changes_);
    addDockWidget(Qt::RightDockWidgetArea, changesDock_);
    changesDock_->hide();
    race_->findChild<CellTableView*>()->installEventFilter(this);
}

// Right of the window where the desktop has room, else over its lower right corner, where the past lines are.
void MainWindow::putChangesBeside() {
    const QRect desktop = screen()->availableGeometry();
    const QRect window = frameGeometry();
    const QSize size = changesDock_->sizeHint();
    const int right = std::min(window.right() + 1, desktop.right() - size.width());
    const bool covers = right <= window.right();
    const int top = covers ? window.bottom() - size.height() : window.top();
    changesDock_->setGeometry(QRect{QPoint{right, std::max(top, desktop.top())}, size});
}

// Beside the race where there is room for both, else on its own.
void MainWindow::showChanges(bool wanted) {
    constexpr int roomForBoth = 22000; // twips
    if (wanted) changesDock_->setFloating(width() < appearance_.pixels(roomForBoth));
    if (wanted && changesDock_->isFloating()) putChangesBeside();
    changesDock_->setVisible(wanted);
    if (wanted) changes_->setFocus();
}

// In a cell of the race view F2 edits it; everywhere else it is the list of changes.
bool MainWindow::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::ShortcutOverride) return QMainWindow::eventFilter(watched, event);
    const auto* table = qobject_cast<CellTableView*>(watched);
    const bool isEdit = static_cast<QKeyEvent*>(event)->key() == Qt::Key_F2;
    if (isEdit && table && table->currentIndex().flags() & Qt::ItemIsEditable) event->accept();
    return QMainWindow::eventFilter(watched, event);
}

void MainWindow::connectPanels() {
    const auto putOverviewAway = [this] { showOverview(false); };
    connect(overview_, &OverviewPanel::raceOpened, this, putOverviewAway);
    connect(raceList_, &RaceListPanel::raceOpened, this, putOverviewAway);
    connect(board_, &BoardPanel::typingDropped, this, [this](int race) {
        tell(
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
    buildViewMenu();
    buildHelpMenu();
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

void MainWindow::buildViewMenu() {
    auto* view = new QMenu{tr("&View"), this};
    view->setToolTipsVisible(true);
    menuBar()->insertMenu(menus_->menu(Menu::tools)->menuAction(), view);
    const auto add = [&](const QString& text, const QList<QKeySequence>& keys, const QString& hint,
                         auto&& slot) {
        QAction* action = view->addAction(text);
        action->setShortcuts(keys);
        action->setStatusTip(hint);
        connect(action, &QAction::triggered, this, slot);
        return action;
    };
    overviewAction_ = add(tr("Card &Overview"), {QKeySequence{"F4"}}, tr("All races of the card at a glance"),
                          [this](bool wanted) { showOverview(wanted); });
    overviewAction_->setObjectName("Overview");
    overviewAction_->setCheckable(true);
    QAction* list = findChild<QDockWidget*>("RaceListDock")->toggleViewAction();
    list->setText(tr("Race &List"));
    list->setShortcut(QKeySequence{"F3"});
    list->setStatusTip(tr("The list of the card's races; a double click opens one"));
    view->addAction(list);
    QAction* changesAction = add(tr("Chan&ges"), {QKeySequence{"F2"}},
                                 tr("What was changed on the card, and the program's selections beside mine"),
                                 [this](bool wanted) { showChanges(wanted); });
    changesAction->setObjectName("Changes");
    changesAction->setCheckable(true);
    connect(changesDock_, &QDockWidget::visibilityChanged, changesAction, &QAction::setChecked);
    view->addSeparator();
    add(tr("Zoom &In"), {QKeySequence{"Ctrl++"}, QKeySequence{"Ctrl+="}}, tr("Larger"),
        [this] { appearance_.zoomBy(1); });
    add(tr("Zoom O&ut"), {QKeySequence{"Ctrl+-"}}, tr("Smaller"), [this] { appearance_.zoomBy(-1); });
    add(tr("Normal &Size"), {QKeySequence{"Ctrl+0"}}, tr("As large as designed"),
        [this] { appearance_.setZoom(100); });
    view->addSeparator();
    QAction* viewer =
        add(tr("&Built-in Text Viewer"), {},
            tr("Read reports and settings in Quillon's own viewer, not in the desktop's editor"),
            [this](bool wanted) { ports_->setBuiltInViewer(wanted); });
    viewer->setObjectName("BuiltInViewer");
    viewer->setCheckable(true);
    viewer->setChecked(ports_->builtInViewer());

    struct ThemeItem {
        Theme theme;
        const char* name;
        const char* caption;
    };
    constexpr std::array themes{ThemeItem{Theme::system, "ThemeSystem", "As the &Desktop"},
                                ThemeItem{Theme::light, "ThemeLight", "&Light"},
                                ThemeItem{Theme::dark, "ThemeDark", "Dar&k"}};
    QMenu* themeMenu = view->addMenu(tr("&Theme"));
    auto* group = new QActionGroup{this};
    for (const ThemeItem& item : themes) {
        QAction* action = themeMenu->addAction(tr(item.caption));
        action->setObjectName(item.name);
        action->setCheckable(true);
        action->setChecked(item.theme == appearance_.theme());
        group->addAction(action);
        connect(action, &QAction::triggered, this,
                [this, theme = item.theme] { appearance_.setTheme(theme); });
    }
}

void MainWindow::buildHelpMenu() {
    QMenu* help = menus_->menu(Menu::help);
    QAction* guide = help->addAction(tr("User's &Guide"), this, &MainWindow::openGuide);
    guide->setObjectName("UsersGuide");
    guide->setShortcut(QKeySequence{Qt::Key_F1});
    guide->setStatusTip(tr("The guide, open at what is on show"));
    QAction* keys = help->addAction(tr("&Keys..."), this, [this] {
        auto* dialog = new KeysDialog{*menuBar(), this};
        dialog->setAttribute(Qt::WA_DeleteOnClose);
        dialog->show();
    });
    keys->setObjectName("KeysOfTheWindow");
    keys->setStatusTip(tr("All keys, and what they do"));
    help->insertActions(help->actions().front(), {guide, keys});
    help->addSeparator();
    QAction* journal = help->addAction(tr("&Fault Journal..."));
    journal->setObjectName("FaultJournal");
    journal->setStatusTip(tr("What was passed over in tables and files since the start"));
    connect(journal, &QAction::triggered, this, &MainWindow::openJournal);
}

void MainWindow::openJournal() {
    if (!journal_) journal_ = new FaultJournalDialog{appearance_, this};
    journal_->refresh();
    journal_->show();
    journal_->raise();
    journal_->activateWindow();
}

void MainWindow::buildNotices() {
    auto* faults = new QPushButton{this};
    statusBar()->addPermanentWidget(faults);
    connect(faults, &QPushButton::clicked, this, &MainWindow::openJournal);
    notices_ = new WindowNotices{runner_, *bar_, *faults};
    new CardKeeping{runner_, *bar_};
    before_ = new BeforeCommands{runner_, *this};
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
    if (theScreen.summaryVisible) return "What the card earned";
    if (theScreen.profileVisible) return "Betting profiles";
    if (theScreen.tracksVisible || theScreen.picksVisible) return "Tracks and picks";
    if (!cardIsOpen()) return "Start Quillon";
    if (board_->isAncestorOf(QApplication::focusWidget())) return "Record the results";
    if (theScreen.pastPerformanceOpen && !overviewWanted_) return "Past lines, and taking another one";
    return "Read the races";
}

void MainWindow::openGuide() {
    if (!guide_) guide_ = new GuideWindow{appearance_, this};
    const QString place = guidesPlace(); // by the widget that has the focus
    guide_->show();
    guide_->openAt(place);
    guide_->raise();
    guide_->activateWindow();
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
    raceBar_->refresh();
    header_->refresh();
    race_->refresh();
    board_->refresh();
    pastLines_->refresh();
    analysis_->refresh();
    overview_->refresh();
    empty_->refresh();
    raceList_->refresh();
    changes_->refresh();
    stars_->refresh();
    choices_->refresh();
    overviewAction_->setEnabled(cardIsOpen());
    overviewAction_->setChecked(overviewWanted_);
    pages_->setCurrentWidget(pageWanted());
}

// A save that went well says nothing of its own.
void MainWindow::tellSaved(CommandId id) {
    constexpr int aGlance = 8000; // milliseconds
    if (ports_->errorShown()) return;
    if (id == CommandId::Save && cardIsOpen())
        statusBar()->showMessage(tr("The card is saved as %1").arg(shown(card.cardFileName)), aGlance);
    if (id == CommandId::CloseRC && !cardIsOpen() && !cardName_.empty())
        tell(tr("%1 is saved, with its results and all changes, and closed").arg(shown(cardName_)));
}

void MainWindow::tell(const QString& text) {
    constexpr int longEnoughToRead = 20000; // milliseconds
    statusBar()->showMessage(text, longEnoughToRead);
}

// A step back does not reach the archive.
void MainWindow::tellRecorded(CommandId id) {
    const bool isStep = id == CommandId::Undo || id == CommandId::Redo || id == CommandId::UndoTo;
    if (isStep && changes.isRecorded())
        tell(tr("The archive keeps its record of this card as it was recorded"));
}

void MainWindow::takeUpEnd() {
    if (ports_->ended()) close();
}

void MainWindow::closeEvent(QCloseEvent* event) {
    if (!ports_->ended()) runner_.run(CommandId::CloseWindow);
    if (!ports_->ended()) return event->ignore();
    keepLook();
    event->accept();
    stars_->hide(); // its close control goes back to the races
    choices_->hide();
    QApplication::quit();
}

void MainWindow::restoreLook() {
    const QSettings settings;
    appearance_.setZoom(settings.value("zoom", appearance_.zoom()).toInt());
    restoreGeometry(settings.value("geometry").toByteArray());
    restoreState(settings.value("state").toByteArray());
    const auto tables = findChildren<CellTableView*>();
    for (CellTableView* table : tables)
        table->setDraggedWidths(settings.value(widthsOf(*table)).toStringList());
}

void MainWindow::keepLook() const {
    QSettings settings;
    settings.setValue("geometry", saveGeometry());
    settings.setValue("state", saveState());
    const auto tables = findChildren<CellTableView*>();
    for (const CellTableView* table : tables) {
        const QStringList widths = table->draggedWidths();
        if (widths.isEmpty())
            settings.remove(widthsOf(*table));
        else
            settings.setValue(widthsOf(*table), widths);
    }
    settings.setValue("zoom", appearance_.zoom());
    settings.setValue("theme", static_cast<int>(appearance_.theme()));
}

} // namespace quillon
