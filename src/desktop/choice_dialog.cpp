#include "desktop/choice_dialog.h"

#include "desktop/command_texts.h"
#include "desktop/shown_text.h"
#include "results/on_show.h"

#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMainWindow>
#include <QStatusBar>
#include <QVBoxLayout>

#include <algorithm>

namespace quillon {
namespace {

constexpr TextView exitLine = "EXIT";
constexpr int dialogWidth = 7400; ///< twips
constexpr int dialogHeight = 6400;
constexpr int topRow = 0;

bool hasExit(const ChoiceList& list) {
    return std::find(list.lines.begin(), list.lines.end(), exitLine) != list.lines.end();
}

} // namespace

// --- The dialog --------------------------------------------------------------------------------------------

ChoiceDialog::ChoiceDialog(CommandRunner& runner, Appearance& appearance, QWidget* parent)
    : QDialog{parent}, runner_{runner}, appearance_{appearance} {
    setObjectName("ChoiceDialog");
    setModal(false);
    buildFrame();
    buildPages();
    buildWaitingButton();
    connect(&appearance_, &Appearance::changed, this, &ChoiceDialog::lay);
    lay();
}

void ChoiceDialog::buildFrame() {
    auto* column = new QVBoxLayout{this};
    whose_ = new QLabel{this};
    whose_->setObjectName("ChoiceWhose");
    whose_->setTextFormat(Qt::PlainText);
    filter_ = new QLineEdit{this};
    filter_->setObjectName("ChoiceFilter");
    filter_->setAccessibleName(tr("Find in the list"));
    filter_->setPlaceholderText(tr("Type to find"));
    filter_->setClearButtonEnabled(true);
    filter_->installEventFilter(this);
    stack_ = new QStackedWidget{this};
    empty_ = new QLabel{this};
    empty_->setObjectName("ChoiceEmpty");
    empty_->setTextFormat(Qt::PlainText);
    empty_->setWordWrap(true);
    auto* buttons = new QDialogButtonBox{QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this};
    pick_ = buttons->button(QDialogButtonBox::Ok);
    cancel_ = buttons->button(QDialogButtonBox::Cancel);
    pick_->setObjectName("ChoicePick");
    pick_->setDefault(true);
    column->addWidget(whose_);
    column->addWidget(filter_);
    column->addWidget(stack_, 1);
    column->addWidget(empty_);
    column->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &ChoiceDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &ChoiceDialog::reject);
    connect(filter_, &QLineEdit::textChanged, this, &ChoiceDialog::find);
}

void ChoiceDialog::buildPages() {
    constexpr std::size_t lists = 3;
    pages_.reserve(lists); // they are pointed at
    Page& cards = addPage(&Screen::fileList, CommandId::ChooseFile,
                          tr("There is no saved card in the folder \"Race Cards\" yet."));
    cards.view->setHeaderHidden(false);
    cards.view->setSortingEnabled(true);
    cards.view->sortByColumn(ChoiceModel::date, Qt::DescendingOrder); // the latest card is the likeliest
    cards.view->header()->setStretchLastSection(true);
    addPage(&Screen::trackList, CommandId::SelectTrack, tr("There is no track yet."));
    Page& drivers = addPage(&Screen::driverList, CommandId::DriverChoice, tr("There is no driver yet."));
    drivers.found->sort(ChoiceModel::fileName);
}

ChoiceDialog::Page& ChoiceDialog::addPage(ChoiceList Screen::*list, CommandId command, const QString& empty) {
    auto* lines = new ChoiceModel{theScreen.*list, list == &Screen::fileList, this};
    auto* found = new QSortFilterProxyModel{this};
    found->setSourceModel(lines);
    found->setSortRole(ChoiceModel::sortRole);
    found->setSortCaseSensitivity(Qt::CaseInsensitive);
    found->setFilterCaseSensitivity(Qt::CaseInsensitive);
    found->setFilterKeyColumn(-1);
    auto* view = new QTreeView{stack_};
    view->setObjectName(nameOf(command));
    setCommand(*view, command);
    view->setAccessibleName(captionOf(command));
    view->setModel(found);
    view->setUniformRowHeights(true); // ten thousand rows are laid out at once
    view->setRootIsDecorated(false);
    view->setHeaderHidden(true);
    view->setAllColumnsShowFocus(true);
    view->installEventFilter(this);
    stack_->addWidget(view);
    pages_.push_back({list, command, empty, lines, found, view});
    Page& page = pages_.back();
    connect(view, &QTreeView::doubleClicked, this,
            [this, &page](const QModelIndex& index) { pick(page, index); });
    return page;
}

// In the status bar, where a list that was put aside can be had again: the menu's item is not available while
// its list is open.
void ChoiceDialog::buildWaitingButton() {
    waiting_ = new QPushButton{this};
    waiting_->setObjectName("ChoiceWaiting");
    waiting_->setFlat(true);
    waiting_->hide();
    if (auto* window = qobject_cast<QMainWindow*>(parentWidget()))
        window->statusBar()->addPermanentWidget(waiting_);
    waiting_->hide();
    connect(waiting_, &QPushButton::clicked, this, [this] {
        for (Page& page : pages_)
            if (page.waits) return openPage(page);
    });
}

QSize ChoiceDialog::sizeHint() const {
    return {appearance_.pixels(dialogWidth), appearance_.pixels(dialogHeight)};
}

void ChoiceDialog::lay() {
    constexpr int points = 10;
    for (Page& page : pages_) {
        const bool ofCards = page.list == &Screen::fileList;
        page.view->setFont(ofCards ? appearance_.viewFont(points, false) : appearance_.fixedFont(points));
        if (!ofCards) continue;
        const QFontMetrics metrics{page.view->font()};
        page.view->setColumnWidth(ChoiceModel::fileName, metrics.horizontalAdvance("MMMM_00000000.pmd") + 16);
        page.view->setColumnWidth(ChoiceModel::track, metrics.horizontalAdvance("MMMMM") + 16);
    }
    whose_->setFont(appearance_.viewFont(points, true));
    for (QWidget* plain : {static_cast<QWidget*>(filter_), static_cast<QWidget*>(empty_),
                           static_cast<QWidget*>(pick_), static_cast<QWidget*>(cancel_)})
        plain->setFont(appearance_.viewFont(points, false));
}

// --- Opening and closing -----------------------------------------------------------------------------------

/// The list that opened since the last look; else the one on show, or any that is still open.
ChoiceDialog::Page* ChoiceDialog::pageWanted() {
    Page* opened = nullptr;
    Page* open = nullptr;
    for (Page& page : pages_) {
        const bool isVisible = (theScreen.*page.list).visible;
        if (!isVisible) page.waits = false;
        if (isVisible && !page.wasVisible) opened = &page;
        if (isVisible && !page.waits && (!open || &page == current_)) open = &page;
        page.wasVisible = isVisible;
    }
    return opened ? opened : open;
}

void ChoiceDialog::refresh() {
    for (Page& page : pages_)
        if ((theScreen.*page.list).visible) page.lines->refresh();
    Page* wanted = pageWanted();
    if (wanted && (wanted != current_ || !isVisible())) {
        openPage(*wanted);
    } else if (!wanted) {
        current_ = nullptr;
        hide();
    }
    showState();
}

void ChoiceDialog::openPage(Page& page) {
    page.waits = false;
    current_ = &page;
    setWindowTitle(captionOf(page.command));
    stack_->setCurrentWidget(page.view);
    filter_->clear();
    find({});
    goToTodaysDriver(page);
    show();
    raise();
    activateWindow();
    filter_->setFocus();
    showState();
}

void ChoiceDialog::showState() {
    const auto waits =
        std::find_if(pages_.begin(), pages_.end(), [](const Page& page) { return page.waits; });
    waiting_->setVisible(waits != pages_.end());
    if (waits != pages_.end()) {
        waiting_->setText(buttonCaption(waits->command) + "...");
        waiting_->setAccessibleName(captionOf(waits->command));
        waiting_->setToolTip(tr("The list is still open: pick a line of it"));
        waiting_->setShortcut(QKeySequence::Open); // the menu's item has none of its own meanwhile
    }
    if (!current_) return;
    const bool isEmpty = current_->lines->rowCount() == 0;
    empty_->setVisible(isEmpty);
    empty_->setText(isEmpty ? current_->empty : QString{});
    pick_->setEnabled(current_->view->currentIndex().isValid());
    showWhose();
}

// The window is not blocked: with another race on show the change would go to the entry of that race.
void ChoiceDialog::showWhose() {
    const bool isDrivers = current_->list == &Screen::driverList;
    whose_->setVisible(isDrivers);
    const auto change = isDrivers ? driverChange() : std::nullopt;
    if (!change) return whose_->clear();
    whose_->setText(
        tr("Race %1: %2, now %3").arg(change->race).arg(shown(change->horse), shown(change->driver)));
}

// --- Finding and picking -----------------------------------------------------------------------------------

void ChoiceDialog::find(const QString& text) {
    if (!current_) return;
    current_->found->setFilterFixedString(text);
    selectFirst(*current_);
    pick_->setEnabled(current_->view->currentIndex().isValid());
}

void ChoiceDialog::selectFirst(Page& page) {
    const QModelIndex first = page.found->index(topRow, ChoiceModel::fileName);
    if (!first.isValid()) return;
    page.view->setCurrentIndex(first);
    page.view->scrollToTop();
}

// The list of drivers opens at the one who stands in the entry's row.
void ChoiceDialog::goToTodaysDriver(Page& page) {
    const auto change = page.list == &Screen::driverList ? driverChange() : std::nullopt;
    if (!change || change->driver.empty()) return;
    const QString driver = shown(change->driver);
    for (int row = 0; row < page.found->rowCount(); ++row) {
        const QModelIndex index = page.found->index(row, ChoiceModel::fileName);
        if (!index.data().toString().startsWith(driver, Qt::CaseInsensitive)) continue;
        page.view->setCurrentIndex(index);
        page.view->scrollTo(index, QAbstractItemView::PositionAtCenter);
        return;
    }
}

void ChoiceDialog::pick(Page& page, const QModelIndex& index) {
    if (!index.isValid() || !(index.flags() & Qt::ItemIsEnabled)) return;
    const Text line = page.lines->line(page.found->mapToSource(index).row());
    runner_.run(page.command, textArgument(line));
}

void ChoiceDialog::accept() {
    if (current_) pick(*current_, current_->view->currentIndex());
}

void ChoiceDialog::reject() {
    if (current_ && hasExit(theScreen.*current_->list)) {
        runner_.run(current_->command, textArgument(Text{exitLine}));
        return;
    }
    if (current_) current_->waits = (theScreen.*current_->list).visible;
    current_ = nullptr;
    QDialog::reject();
    showState();
}

// From the field the arrows walk the list; from the list a letter goes to the field.
bool ChoiceDialog::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress || !current_) return QDialog::eventFilter(watched, event);
    auto* key = static_cast<QKeyEvent*>(event);
    const bool walks = key->key() == Qt::Key_Down || key->key() == Qt::Key_Up ||
                       key->key() == Qt::Key_PageDown || key->key() == Qt::Key_PageUp;
    const bool accepts = key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter;
    if (accepts) {
        accept();
        return true;
    }
    if (watched == filter_ && walks) {
        QCoreApplication::sendEvent(current_->view, event);
        return true;
    }
    const bool types = !key->text().isEmpty() && key->text().front().isPrint() &&
                       !(key->modifiers() & (Qt::ControlModifier | Qt::AltModifier));
    if (watched == current_->view && types) {
        filter_->setFocus();
        QCoreApplication::sendEvent(filter_, event);
        return true;
    }
    return QDialog::eventFilter(watched, event);
}

} // namespace quillon
