#include "desktop/worth_panel.h"

#include "analysis/worth_texts.h"
#include "card/race_card.h"
#include "cardfiles/notes.h"
#include "desktop/shown_text.h"
#include "desktop/spin_box_name.h"
#include "results/board.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QSettings>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include <array>

namespace quillon {
namespace {

constexpr QChar overlaySign{0x25B2}; // a triangle
constexpr int panelTwips = 7400;
constexpr const char* marginSetting = "overlayMargin";
constexpr int usualMargin = 20; // percent

enum Column { number, horse, chance, fair, morningLine, tonight, mark, columns };

struct ColumnText {
    const char* head;
    const char* hint;
};
constexpr std::array columnTexts{
    ColumnText{"#", "Program number"},
    ColumnText{"Horse", "The entry; the scratched are left out"},
    ColumnText{"Chance", "To win, in percent, by your saved results"},
    ColumnText{"Fair", "Odds to one at which a bet neither gains nor loses in the long run"},
    ColumnText{"ML", "Morning line"},
    ColumnText{"Tonight", "The odds on offer: type 5/2, 5-2 or 2.5. They are not saved with the card"},
    ColumnText{"Worth", "Overlay: the odds on offer are longer than the fair ones by the margin"},
};
static_assert(columnTexts.size() == columns);

QString counted(std::size_t count, const QString& one, const QString& many) {
    return QString::number(count) + ' ' + (count == 1 ? one : many);
}

} // namespace

QString qualityOf(const Fit& fit) {
    const QString races = counted(fit.races, WorthPanel::tr("race"), WorthPanel::tr("races"));
    if (!fit.isEnough())
        return WorthPanel::tr("%1 with results in the saved cards: too few for chances, which need %2.")
            .arg(races)
            .arg(leastRaces);
    if (!fit.scale)
        return WorthPanel::tr("%1, and no scale fits them: they tell the ratings' worth in no way.")
            .arg(races);
    const LogLoss& loss = fit.loss;
    QString text = WorthPanel::tr("%1 of %2; log loss %3, all equal %4")
                       .arg(races, counted(fit.cards, WorthPanel::tr("card"), WorthPanel::tr("cards")),
                            shown(lossText(loss.fitted)), shown(lossText(loss.allEqual)));
    if (loss.lineRaces == loss.races)
        text += WorthPanel::tr(", morning line %1").arg(shown(lossText(loss.line)));
    else if (loss.lineRaces > 0)
        text += WorthPanel::tr("; morning line %1 on the %2 that have one, log loss there %3")
                    .arg(shown(lossText(loss.line)))
                    .arg(loss.lineRaces)
                    .arg(shown(lossText(loss.fittedThere)));
    text += WorthPanel::tr(" (less is better).");
    if (loss.fitted >= loss.allEqual)
        text += ' ' + WorthPanel::tr("The ratings told no more than equal chances: don't trust these.");
    else if (loss.lineRaces > 0 && loss.line < loss.fittedThere)
        text += ' ' + WorthPanel::tr("The morning line told more than the ratings.");
    return text;
}

WorthPanel::WorthPanel(Appearance& appearance, QWidget* parent)
    : QWidget{parent}, appearance_{appearance}, heading_{new QLabel{this}}, table_{new QTableWidget{this}},
      marginLabel_{new QLabel{tr("Overlay &margin:"), this}}, margin_{new QSpinBox{this}}, quality_{
                                                                                               new QLabel{
                                                                                                   this}} {
    setObjectName("WorthPanel");
    heading_->setObjectName("WorthHeading");
    heading_->setTextFormat(Qt::PlainText);
    quality_->setObjectName("WorthQuality");
    quality_->setTextFormat(Qt::PlainText);
    quality_->setWordWrap(true);
    buildTable();
    buildMargin();
    auto* row = new QHBoxLayout;
    row->addWidget(marginLabel_);
    row->addWidget(margin_);
    row->addStretch(1);
    auto* column = new QVBoxLayout{this};
    column->setContentsMargins(4, 2, 4, 4);
    column->setSpacing(4);
    column->addWidget(heading_);
    column->addWidget(table_, 1);
    column->addLayout(row);
    column->addWidget(quality_);
    setFocusProxy(table_);
    connect(&appearance_, &Appearance::changed, this, &WorthPanel::lay);
    lay();
}

void WorthPanel::buildTable() {
    table_->setObjectName("WorthTable");
    table_->setAccessibleName(tr("Chances, fair odds, and tonight's odds to type in"));
    table_->setColumnCount(columns);
    for (int column = 0; column < columns; ++column) {
        const ColumnText& text = columnTexts.at(static_cast<std::size_t>(column));
        auto* head = new QTableWidgetItem{tr(text.head)};
        head->setToolTip(tr(text.hint));
        table_->setHorizontalHeaderItem(column, head);
    }
    table_->verticalHeader()->hide();
    table_->setTabKeyNavigation(false); // Tab goes on to the margin
    table_->setSelectionMode(QAbstractItemView::SingleSelection);
    table_->setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::SelectedClicked |
                            QAbstractItemView::EditKeyPressed | QAbstractItemView::AnyKeyPressed);
    connect(table_, &QTableWidget::itemChanged, this, &WorthPanel::takeOdds);
}

void WorthPanel::buildMargin() {
    constexpr int mostMargin = 500;
    margin_->setObjectName("OverlayMargin");
    nameSpinBox(*margin_, tr("Overlay margin in percent"));
    margin_->setToolTip(tr("How much longer than the fair odds the odds on offer must be"));
    margin_->setRange(0, mostMargin);
    margin_->setSuffix(tr(" %"));
    margin_->setValue(QSettings{}.value(marginSetting, usualMargin).toInt());
    marginLabel_->setBuddy(margin_);
    connect(margin_, &QSpinBox::valueChanged, this, [this](int percent) {
        QSettings{}.setValue(marginSetting, percent);
        const QSignalBlocker quiet{table_};
        for (int row = 0; row < table_->rowCount(); ++row) markRow(row);
    });
}

void WorthPanel::lay() {
    setMinimumWidth(appearance_.pixels(panelTwips));
    heading_->setFont(appearance_.viewFont(10, true));
    table_->setFont(appearance_.viewFont(10, false));
    table_->horizontalHeader()->setFont(appearance_.viewFont(9, true));
    table_->verticalHeader()->setDefaultSectionSize(table_->fontMetrics().height() + 6);
    for (QWidget* words : {static_cast<QWidget*>(marginLabel_), static_cast<QWidget*>(margin_),
                           static_cast<QWidget*>(quality_)})
        words->setFont(appearance_.viewFont(10, false));
    table_->resizeColumnsToContents();
}

// Room for twelve horses.
QSize WorthPanel::sizeHint() const {
    const int table = table_->horizontalHeader()->sizeHint().height() +
                      ratedEntries * table_->verticalHeader()->defaultSectionSize() +
                      2 * table_->frameWidth();
    const QSize plain = QWidget::sizeHint();
    return {plain.width(), plain.height() - table_->sizeHint().height() + table};
}

void WorthPanel::refresh() {
    notes.takeUp();
    const Fit& fit = saved_.fit();
    race_ = cardIsOpen() ? raceOnShow() : 0;
    rows_ = race_ > 0 ? worthOf(race_, fit.scale ? fit.scale->perPoint : 0) : std::vector<WorthRow>{};
    if (!fit.scale)
        for (WorthRow& row : rows_) row.chance.reset();
    heading_->setText(race_ > 0 ? tr("Race %1").arg(race_) : tr("No race is on show"));
    quality_->setText(qualityOf(fit));
    fillTable();
}

void WorthPanel::fillTable() {
    const QSignalBlocker quiet{table_};
    table_->setRowCount(static_cast<int>(rows_.size()));
    for (int row = 0; row < table_->rowCount(); ++row) fillRow(row);
    table_->resizeColumnsToContents();
}

Text WorthPanel::oddsIn(int row) const {
    return notes.odds(race_, rows_[static_cast<std::size_t>(row)].programNumber);
}

void WorthPanel::fillRow(int row) {
    const WorthRow& entry = rows_[static_cast<std::size_t>(row)];
    const auto put = [&](int column, const QString& text) {
        if (!table_->item(row, column)) table_->setItem(row, column, new QTableWidgetItem);
        QTableWidgetItem& cell = *table_->item(row, column);
        const bool isText = column == horse || column == mark;
        cell.setTextAlignment((isText ? Qt::AlignLeft : Qt::AlignRight) | Qt::AlignVCenter);
        cell.setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable |
                      (column == tonight ? Qt::ItemIsEditable : Qt::NoItemFlags));
        if (cell.text() != text) cell.setText(text);
    };
    put(number, shown(entry.programNumber));
    put(horse, shown(entry.horse));
    put(chance, entry.chance ? shown(percentText(*entry.chance)) + " %" : QString{});
    put(fair, entry.chance ? shown(oddsText(fairOdds(*entry.chance))) : QString{});
    put(morningLine, shown(entry.morningLine));
    put(tonight, shown(oddsIn(row)));
    put(mark, {});
    markRow(row);
}

// The sign and the word, and bold: no colour has to be told from another.
void WorthPanel::markRow(int row) {
    const WorthRow& entry = rows_[static_cast<std::size_t>(row)];
    const Text typedOdds = oddsIn(row);
    const auto offered = oddsToOne(typedOdds);
    const bool isBetter =
        offered && entry.chance && isOverlay(*offered, fairOdds(*entry.chance), margin_->value());
    QString words;
    if (isBetter)
        words = overlaySign + QString{" "} + tr("overlay");
    else if (!offered && !trimmed(typedOdds).empty())
        words = tr("no odds");
    else if (!entry.rating)
        words = tr("no usable rating");
    table_->item(row, mark)->setText(words);
    for (int column = 0; column < columns; ++column) {
        QFont font = table_->font();
        font.setBold(isBetter);
        table_->item(row, column)->setFont(font);
    }
}

void WorthPanel::takeOdds(const QTableWidgetItem* cell) {
    if (cell->column() != tonight || cell->row() >= static_cast<int>(rows_.size())) return;
    const QSignalBlocker quiet{table_};
    const Text odds{trimmed(typed(cell->text()))};
    if (odds != oddsIn(cell->row()))
        keepOdds(race_, rows_[static_cast<std::size_t>(cell->row())].programNumber, odds);
    notes.takeUp();
    markRow(cell->row());
    table_->resizeColumnsToContents();
}

} // namespace quillon
