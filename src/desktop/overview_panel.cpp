#include "desktop/overview_panel.h"

#include "card/race_card.h"
#include "desktop/command_texts.h"
#include "desktop/shown_text.h"
#include "reports/card_overview.h"
#include "results/board.h"
#include "results/race_display.h"

#include <QDate>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLocale>
#include <QToolTip>
#include <QVBoxLayout>

namespace quillon {
namespace {

constexpr int rowTwips = 360;
constexpr QChar changedSign{0x2022}; // a dot

bool same(const Grid& left, const Grid& right) {
    if (left.rows() != right.rows() || left.columns() != right.columns()) return false;
    for (int row = Grid::headRow; row < left.rows(); ++row)
        for (int column = 0; column < left.columns(); ++column)
            if (left.read(row, column).text != right.read(row, column).text) return false;
    return true;
}

QString cardDate() {
    const QString stored = shown(card.cardDate).trimmed();
    const QDate date = QDate::fromString(stored, QStringLiteral("yyyyMMdd"));
    return date.isValid() ? QLocale{QLocale::English}.toString(date, QLocale::LongFormat) : stored;
}

// The track's description is a row of a table, columns blanks apart.
QString headingOf(int races) {
    QStringList parts{shown(card.raceInfo[{1}].trackInfo).simplified(), cardDate(),
                      races == 1 ? OverviewPanel::tr("1 race") : OverviewPanel::tr("%1 races").arg(races)};
    parts.removeAll(QString{});
    return parts.join(QStringLiteral("     "));
}

} // namespace

OverviewPanel::OverviewPanel(CommandRunner& runner, Appearance& appearance, QWidget* parent)
    : QWidget{parent}, runner_{runner}, appearance_{appearance}, heading_{new QLabel{this}},
      hint_{new QLabel{tr("A click, or Enter, opens a race."), this}},
      table_{new CellTableView{appearance, tr("Overview of the card"), this}} {
    setObjectName("OverviewPanel");
    heading_->setObjectName("OverviewHeading");
    heading_->setTextFormat(Qt::PlainText);
    auto* column = new QVBoxLayout{this};
    column->setContentsMargins(0, 0, 0, 0);
    auto* top = new QHBoxLayout;
    top->addWidget(heading_);
    top->addStretch(1);
    top->addWidget(hint_);
    column->addLayout(top);
    column->addWidget(table_);

    table_->setObjectName("OverviewTable");
    setCommand(*table_, CommandId::RaceButton);
    table_->setFonts(9, 10, false);
    table_->setRowHeight(rowTwips);
    table_->setSelectionBehavior(QAbstractItemView::SelectRows);
    table_->setAlternatingRowColors(true);
    table_->setViewLayout(overviewLayout());
    table_->showRowMarks(changedSign);
    table_->viewport()->setCursor(Qt::PointingHandCursor);
    table_->installEventFilter(this);
    connect(table_, &QAbstractItemView::clicked, this, [this](const QModelIndex& index) {
        const auto selecting = Qt::ShiftModifier | Qt::ControlModifier;
        if (!(QGuiApplication::keyboardModifiers() & selecting)) open(index);
    });
    connect(&appearance_, &Appearance::changed, this, &OverviewPanel::lay);
    setFocusProxy(table_);
    lay();
}

// The table shows our grid until its end, so it goes first.
OverviewPanel::~OverviewPanel() { delete table_; }

void OverviewPanel::lay() {
    heading_->setFont(appearance_.viewFont(12, true));
    hint_->setFont(appearance_.viewFont(9, false));
}

void OverviewPanel::refresh() {
    refreshMarks();
    Grid races = cardOverview();
    heading_->setText(headingOf(races.rows() - 1));
    if (same(races, races_)) return;
    races_ = std::move(races);
    table_->show(&races_);
}

void OverviewPanel::refreshMarks() {
    std::vector<RowMark> marks(1); // the head's
    for (int race = 1; race <= ratedRaces; ++race) {
        RowMark& mark = marks.emplace_back();
        if (!cardIsOpen() || !changed_.isChanged(race)) continue;
        mark.sign = changedSign;
        mark.words = tr("You changed this race");
    }
    table_->setRowMarks(std::move(marks));
}

void OverviewPanel::open(const QModelIndex& index) {
    const int race = table_->tableRow(index);
    if (race < 1) return;
    if (race > lastButtonRace) {
        const QPoint below = table_->viewport()->mapToGlobal(table_->visualRect(index).bottomLeft());
        QToolTip::showText(
            below, tr("Only races 1 to %1 open from here. Go on with the arrows.").arg(lastButtonRace),
            table_);
        return;
    }
    if (runner_.run(CommandId::RaceButton, numberArgument(race))) emit raceOpened();
}

void OverviewPanel::goToRaceOnShow() {
    const QAbstractItemModel& rows = *table_->model();
    for (int row = 0; row < rows.rowCount(); ++row) {
        const QModelIndex index = rows.index(row, OverviewColumn::race);
        if (table_->tableRow(index) == raceOnShow()) return table_->setCurrentIndex(index);
    }
}

bool OverviewPanel::eventFilter(QObject* watched, QEvent* event) {
    if (watched == table_ && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            open(table_->currentIndex());
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

void OverviewPanel::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    goToRaceOnShow();
    table_->setFocus();
}

} // namespace quillon
