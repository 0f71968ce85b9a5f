#include "desktop/why_panel.h"

#include "card/race_card.h"
#include "desktop/shown_text.h"
#include "results/on_show.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include <algorithm>
#include <array>
#include <utility>

namespace quillon {
namespace {

constexpr int panelTwips = 8200;
constexpr int placeLines = 4; ///< in sight
constexpr int lineRows = 4;

enum LineColumn { lineNumber, lineRating, verdict, lineReason, lineColumns };
constexpr std::array lineHeads{"Line", "PR", "", "Why"};
static_assert(lineHeads.size() == lineColumns);

enum RoadColumn { stepName, figure, reason, chosenFigure, chosenReason, roadColumns };

// A table that is read: rows are walked with the keys, Tab goes on.
void makeReadable(QTableWidget& table) {
    table.verticalHeader()->hide();
    table.setEditTriggers(QAbstractItemView::NoEditTriggers);
    table.setSelectionMode(QAbstractItemView::SingleSelection);
    table.setSelectionBehavior(QAbstractItemView::SelectRows);
    table.setTabKeyNavigation(false);
    table.setShowGrid(false);
    table.setAlternatingRowColors(true);
    table.horizontalHeader()->setHighlightSections(false);
    table.horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
}

void put(QTableWidget& table, int row, int column, const QString& text, bool isNumber = false) {
    auto* cell = new QTableWidgetItem{text};
    cell->setTextAlignment((isNumber ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignTop);
    cell->setToolTip(text);
    table.setItem(row, column, cell);
}

} // namespace

WhyPanel::WhyPanel(Appearance& appearance, QWidget* parent)
    : QWidget{parent}, appearance_{appearance}, heading_{new QLabel{this}}, place_{new QListWidget{this}},
      lines_{new QTableWidget{this}}, roads_{new QTableWidget{this}}, all_{new QCheckBox{tr("All steps"),
                                                                                         this}} {
    setObjectName("WhyPanel");
    heading_->setObjectName("WhyHeading");
    heading_->setTextFormat(Qt::PlainText);
    heading_->setWordWrap(true);
    buildLists();
    buildRoads();
    auto* column = new QVBoxLayout{this};
    column->setContentsMargins(4, 2, 4, 4);
    column->setSpacing(3);
    auto* head = new QHBoxLayout;
    head->addWidget(heading_, 1);
    head->addWidget(all_);
    column->addLayout(head);
    column->addWidget(place_);
    column->addWidget(lines_, 1);
    column->addWidget(roads_, 3);
    setTabOrder(roads_, all_);
    setFocusProxy(lines_);
    connect(&appearance_, &Appearance::changed, this, &WhyPanel::lay);
    lay();
}

void WhyPanel::buildLists() {
    place_->setObjectName("WhyPlace");
    place_->setAccessibleName(tr("Why this place"));
    place_->setWordWrap(true);
    place_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    lines_->setObjectName("WhyLines");
    lines_->setAccessibleName(tr("Why this line: the past lines of the entry"));
    makeReadable(*lines_);
    lines_->setColumnCount(lineColumns);
    QStringList heads;
    for (const char* head : lineHeads) heads << tr(head);
    lines_->setHorizontalHeaderLabels(heads);
    lines_->horizontalHeader()->setStretchLastSection(true);
    connect(lines_, &QTableWidget::currentCellChanged, this, [this](int row) { selectLine(row); });
}

void WhyPanel::buildRoads() {
    roads_->setObjectName("WhyRoads");
    roads_->setAccessibleName(tr("Why this rating: the road of the line, and of the chosen one"));
    makeReadable(*roads_);
    roads_->setColumnCount(roadColumns);
    roads_->setWordWrap(true);
    roads_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    for (const int column : {reason, chosenReason})
        roads_->horizontalHeader()->setSectionResizeMode(column, QHeaderView::Stretch);
    connect(roads_->horizontalHeader(), &QHeaderView::sectionResized, roads_,
            &QTableWidget::resizeRowsToContents, Qt::QueuedConnection); // once all columns have their widths
    all_->setObjectName("WhyAllSteps");
    all_->setToolTip(tr("The steps that changed nothing, too"));
    connect(all_, &QCheckBox::toggled, this, &WhyPanel::fillRoads);
}

void WhyPanel::lay() {
    setMinimumWidth(appearance_.pixels(panelTwips));
    heading_->setFont(appearance_.viewFont(11, true));
    for (QWidget* widget : {static_cast<QWidget*>(place_), static_cast<QWidget*>(lines_),
                            static_cast<QWidget*>(roads_), static_cast<QWidget*>(all_)})
        widget->setFont(appearance_.viewFont(9, false));
    for (QTableWidget* table : {lines_, roads_}) {
        table->horizontalHeader()->setFont(appearance_.viewFont(9, true));
        table->verticalHeader()->setMinimumSectionSize(1);
        table->verticalHeader()->setDefaultSectionSize(table->fontMetrics().height() + 4);
    }
    place_->setFixedHeight(placeLines * (place_->fontMetrics().height() + 2) + 2 * place_->frameWidth());
    lines_->setMinimumHeight(lines_->horizontalHeader()->sizeHint().height() +
                             lineRows * (lines_->fontMetrics().height() + 4) + 2 * lines_->frameWidth());
    fillRoads();
}

// Low, since it stands over the window where the screen has no room beside it.
QSize WhyPanel::sizeHint() const {
    constexpr int linesOfRoads = 5;
    const int roads = roads_->horizontalHeader()->sizeHint().height() +
                      linesOfRoads * (roads_->fontMetrics().height() + 4) + 2 * roads_->frameWidth();
    const int spare =
        roads_->sizeHint().height() - roads + lines_->sizeHint().height() - lines_->minimumHeight();
    return QWidget::sizeHint() - QSize{0, spare};
}

void WhyPanel::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    refresh();
}

void WhyPanel::tell(const WhyTarget& target) {
    if (target == target_) return;
    target_ = target;
    refresh();
}

void WhyPanel::refresh() {
    const int race = raceViewOnShow();
    if (target_.race != race || target_.entry < 1) target_ = {race, 1, 0};
    const int open = theScreen.pastPerformanceOpen ? theScreen.currentEntry : 0;
    if (std::exchange(entryOpen_, open) != open && open > 0) target_ = {race, open, 0};
    if (!isVisible()) return;
    why_ = whyLines(target_.race, target_.entry);
    if (target_.line < 1 || target_.line > static_cast<int>(why_.size()))
        target_.line = std::max(1, chosenOf(why_));
    const bool isThere = cardIsOpen() && !horseIn(target_.race, target_.entry).empty();
    for (QWidget* part : {static_cast<QWidget*>(place_), static_cast<QWidget*>(lines_),
                          static_cast<QWidget*>(roads_), static_cast<QWidget*>(all_)})
        part->setEnabled(isThere);
    if (!isThere) return showNothing();
    const RaceEntry& entry = card.entry(target_.race, target_.entry);
    heading_->setText(tr("Race %1, number %2, %3: PR %4")
                          .arg(target_.race)
                          .arg(shown(trimmed(entry.programNumber)), shown(trimmed(entry.horseName)),
                               shown(trimmed(entry.rating))));
    fillPlace();
    fillLines();
    fillRoads();
}

void WhyPanel::showNothing() {
    heading_->setText(cardIsOpen() ? tr("No entry stands here") : tr("No card is open"));
    place_->clear();
    lines_->setRowCount(0);
    roads_->setRowCount(0);
}

void WhyPanel::fillPlace() {
    place_->clear();
    for (const Text& sentence : whyPlace(target_.race, target_.entry)) place_->addItem(shown(sentence));
    const QString changed = changedSince(target_.race, target_.entry, why_);
    if (!changed.isEmpty()) place_->insertItem(0, changed);
}

void WhyPanel::fillLines() {
    const QSignalBlocker quiet{lines_};
    lines_->clearSpans();
    lines_->setRowCount(static_cast<int>(why_.size()));
    for (int row = 0; row < lines_->rowCount(); ++row) {
        const WhyLine& line = why_[static_cast<std::size_t>(row)];
        put(*lines_, row, lineNumber, QString::number(row + 1), true);
        put(*lines_, row, lineRating, shown(trimmed(line.rating)), true);
        put(*lines_, row, verdict, verdictWords(line.note.verdict));
        put(*lines_, row, lineReason, shown(line.note.reason));
    }
    if (why_.empty()) {
        lines_->setRowCount(1);
        lines_->setSpan(0, 0, 1, lineColumns);
        put(*lines_, 0, 0,
            theScreen.mode == CardMode::recalled
                ? tr("A recalled card does not know how its lines were rated")
                : tr("No past line: a first start"));
    }
    for (const int column : {lineNumber, lineRating, verdict}) lines_->resizeColumnToContents(column);
    lines_->setCurrentCell(std::max(0, target_.line - 1), 0);
}

void WhyPanel::selectLine(int row) {
    if (row < 0 || row >= static_cast<int>(why_.size())) return;
    target_.line = row + 1;
    fillRoads();
}

// Beside the line that is chosen itself nothing stands.
void WhyPanel::fillRoads() {
    const auto count = static_cast<int>(why_.size());
    const int chosen = chosenOf(why_);
    const bool both = chosen > 0 && chosen != target_.line;
    const bool isThere = target_.line >= 1 && target_.line <= count;
    roads_->setRowCount(0);
    for (const int column : {chosenFigure, chosenReason}) roads_->setColumnHidden(column, !both);
    const QString mine = target_.line == chosen ? tr("Line %1, chosen") : tr("Line %1");
    roads_->setHorizontalHeaderLabels(
        {tr("Step"), tr("Figure"), mine.arg(target_.line), tr("Figure"), tr("Line %1, chosen").arg(chosen)});
    if (!isThere) return;
    const auto& steps = why_[static_cast<std::size_t>(target_.line - 1)].road.steps;
    const auto* others = both ? &why_[static_cast<std::size_t>(chosen - 1)].road.steps : nullptr;
    for (std::size_t at = 0; at < steps.size(); ++at) {
        const RoadStep* other = others && at < others->size() ? &(*others)[at] : nullptr;
        const bool changes = steps[at].before != steps[at].after || (other && other->before != other->after);
        if (!changes && !all_->isChecked() && at + 1 < steps.size()) continue;
        fillRow(roads_->rowCount(), steps[at], other);
    }
    for (const int column : {stepName, figure, chosenFigure}) roads_->resizeColumnToContents(column);
    roads_->resizeRowsToContents();
}

void WhyPanel::fillRow(int row, const RoadStep& step, const RoadStep* chosen) {
    roads_->insertRow(row);
    put(*roads_, row, stepName, stepWords(step.name));
    put(*roads_, row, figure, shown(step.after), true);
    put(*roads_, row, reason, shown(step.reason));
    put(*roads_, row, chosenFigure, chosen ? shown(chosen->after) : QString{}, true);
    put(*roads_, row, chosenReason, chosen ? shown(chosen->reason) : QString{});
}

} // namespace quillon
