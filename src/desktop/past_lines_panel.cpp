#include "desktop/past_lines_panel.h"

#include "desktop/cell_table_view.h"
#include "desktop/entry_lines_frame.h"
#include "desktop/shade_legend.h"
#include "desktop/shown_text.h"
#include "results/on_show.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include <utility>

namespace quillon {
namespace {

constexpr int headPoints = 9;
constexpr int bodyPoints = 9;
constexpr int headingPoints = 11;
constexpr int legendPoints = 9;
constexpr int leastHeight = 2400; ///< twips

} // namespace

PastLinesPanel::PastLinesPanel(CommandRunner& runner, Appearance& appearance, QWidget* parent)
    : QWidget{parent}, appearance_{appearance}, pages_{new QStackedWidget{this}} {
    auto* column = new QVBoxLayout{this};
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(pages_);
    entry_ = new EntryLinesFrame{runner, appearance_, pages_};
    racePage_ = buildRacePage();
    pages_->addWidget(racePage_);
    pages_->addWidget(entry_);
    buildEntryPlace();
    connect(&appearance_, &Appearance::changed, this, &PastLinesPanel::lay);
    lay();
    refresh();
}

QWidget* PastLinesPanel::buildRacePage() {
    auto* page = new QWidget{pages_};
    raceHeading_ = new QLabel{page};
    raceHeading_->setObjectName("RaceLinesHeading");
    raceHeading_->setTextFormat(Qt::PlainText);
    raceShades_ = new ShadeLegend{page};
    raceTable_ = new CellTableView{appearance_, tr("Past lines of the race"), page};
    raceTable_->setObjectName("RaceLines");
    raceTable_->setFonts(headPoints, bodyPoints, false);
    raceTable_->setViewLayout(raceLinesLayout());
    auto* head = new QHBoxLayout;
    head->addWidget(raceHeading_, 1);
    head->addWidget(raceShades_);
    auto* column = new QVBoxLayout{page};
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(3);
    column->addLayout(head);
    column->addWidget(raceTable_, 1);
    return page;
}

void PastLinesPanel::buildEntryPlace() {
    entryPlace_ = new QStackedWidget{this};
    entryPlace_->setObjectName("EntryPlace");
    entryPlace_->hide();
    entryHint_ = new QLabel{tr("The number at the left of an entry opens its past lines here."), entryPlace_};
    entryHint_->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    entryHint_->setEnabled(false);
    entryHint_->setMargin(12);
    entryPlace_->addWidget(entryHint_);
}

void PastLinesPanel::setEntryApart(bool apart) {
    if (apart == isEntryApart_) return;
    isEntryApart_ = apart;
    (apart ? entryPlace_ : pages_)->addWidget(entry_);
    entryPlace_->setVisible(apart);
    refresh();
}

void PastLinesPanel::lay() {
    for (QWidget* place : {static_cast<QWidget*>(this), static_cast<QWidget*>(entryPlace_)})
        place->setMinimumHeight(appearance_.pixels(leastHeight));
    entryHint_->setFont(appearance_.viewFont(bodyPoints, false));
    raceHeading_->setFont(appearance_.viewFont(headingPoints, true));
    raceShades_->setTextFont(appearance_.viewFont(legendPoints, false));
}

void PastLinesPanel::refresh() {
    const bool isEntryOpen = theScreen.pastPerformanceOpen;
    if (isEntryOpen) entry_->refresh();
    if (!isEntryOpen || isEntryApart_) refreshRacePage();
    showPages();
    tellEntry();
}

void PastLinesPanel::tellEntry() {
    const int entry = theScreen.pastPerformanceOpen ? theScreen.currentEntry : 0;
    if (std::exchange(openEntry_, entry) == entry) return;
    if (entry > 0)
        emit entryShown(entry_);
    else
        emit entryClosed();
}

void PastLinesPanel::showPages() {
    const bool isEntryOpen = theScreen.pastPerformanceOpen;
    if (isEntryOpen) (isEntryApart_ ? entryPlace_ : pages_)->setCurrentWidget(entry_);
    if (!isEntryOpen) entryPlace_->setCurrentWidget(entryHint_);
    if (!isEntryOpen || isEntryApart_) pages_->setCurrentWidget(racePage_);
}

void PastLinesPanel::refreshRacePage() {
    const int race = raceLinesOnShow();
    const Grid* lines = race > 0 ? &theScreen.dataView[static_cast<std::size_t>(race)] : nullptr;
    if (race == race_)
        raceTable_->refresh();
    else
        raceTable_->show(lines);
    race_ = race;
    raceHeading_->setText(lines ? tr("Past lines of race %1").arg(race) : QString{});
    raceShades_->setVisible(false);
    if (lines) raceShades_->showFor(*lines);
}

} // namespace quillon
