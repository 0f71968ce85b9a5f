#include "desktop/changes_panel.h"

#include "card/race_card.h"
#include "day/changes.h"
#include "day/program_and_mine.h"
#include "desktop/change_texts.h"
#include "desktop/command_texts.h"
#include "desktop/shown_text.h"
#include "results/board.h"

#include <QHeaderView>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include <array>

namespace quillon {
namespace {

constexpr QChar movedMark{0x2260}; // not equal
constexpr int panelTwips = 6200;

enum PlaceColumn {
    place,
    programNumber,
    programHorse,
    programRating,
    mark,
    myNumber,
    myHorse,
    myRating,
    placeColumns
};
constexpr std::array placeHeads{"", "#", "Program", "PR", "", "#", "Mine", "PR"};
static_assert(placeHeads.size() == placeColumns);

/// What a line of the list stands for.
enum LineRole { changeNumber = Qt::UserRole, raceOfLine };

} // namespace

ChangesPanel::ChangesPanel(CommandRunner& runner, Appearance& appearance, QWidget* parent)
    : QWidget{parent}, runner_{runner}, appearance_{appearance}, list_{new QListWidget{this}},
      back_{new QPushButton{buttonCaption(CommandId::UndoTo), this}}, heading_{new QLabel{this}},
      places_{new QTableWidget{this}} {
    setObjectName("ChangesPanel");
    buildList();
    buildPlaces();
    auto* column = new QVBoxLayout{this};
    column->setContentsMargins(4, 2, 4, 4);
    column->setSpacing(4);
    column->addWidget(list_, 1);
    column->addWidget(back_, 0, Qt::AlignLeft);
    column->addWidget(heading_);
    column->addWidget(places_);
    setFocusProxy(list_);
    connect(&appearance_, &Appearance::changed, this, &ChangesPanel::lay);
    lay();
    refresh();
}

void ChangesPanel::buildList() {
    list_->setObjectName("ChangeList");
    list_->setAccessibleName(tr("Changes of the card, newest first"));
    list_->setToolTip(tr("A click, or Enter, shows the race"));
    list_->setWordWrap(true);
    connect(list_, &QListWidget::itemClicked, this, &ChangesPanel::showRaceOf);
    connect(list_, &QListWidget::itemActivated, this, &ChangesPanel::showRaceOf);
    connect(list_, &QListWidget::currentRowChanged, this, &ChangesPanel::offerWayBack);
    back_->setObjectName("UndoTo");
    setCommand(*back_, CommandId::UndoTo);
    back_->setAccessibleName(captionOf(CommandId::UndoTo));
    back_->setToolTip(tipOf(CommandId::UndoTo));
    connect(back_, &QPushButton::clicked, this, &ChangesPanel::goBack);
}

void ChangesPanel::buildPlaces() {
    heading_->setObjectName("PlacesHeading");
    heading_->setTextFormat(Qt::PlainText);
    places_->setObjectName("ProgramAndMine");
    places_->setAccessibleName(tr("The program's selections and mine"));
    places_->setRowCount(rankedPlaces);
    places_->setColumnCount(placeColumns);
    QStringList heads;
    for (const char* head : placeHeads) heads << tr(head);
    places_->setHorizontalHeaderLabels(heads);
    places_->verticalHeader()->hide();
    places_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    places_->setSelectionMode(QAbstractItemView::NoSelection);
    places_->setFocusPolicy(Qt::NoFocus);
    places_->setShowGrid(false);
    places_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    for (int row = 0; row < rankedPlaces; ++row)
        for (int column = 0; column < placeColumns; ++column) {
            auto* cell = new QTableWidgetItem;
            const bool isName = column == programHorse || column == myHorse;
            cell->setTextAlignment((isName ? Qt::AlignLeft : Qt::AlignRight) | Qt::AlignVCenter);
            places_->setItem(row, column, cell);
        }
}

void ChangesPanel::lay() {
    setMinimumWidth(appearance_.pixels(panelTwips));
    list_->setFont(appearance_.viewFont(10, false));
    back_->setFont(appearance_.viewFont(10, false));
    heading_->setFont(appearance_.viewFont(10, true));
    places_->setFont(appearance_.viewFont(9, false));
    places_->horizontalHeader()->setFont(appearance_.viewFont(9, true));
    const int row = places_->fontMetrics().height() + 4;
    places_->verticalHeader()->setDefaultSectionSize(row);
    places_->setFixedHeight(places_->horizontalHeader()->sizeHint().height() + rankedPlaces * row +
                            2 * places_->frameWidth() + places_->horizontalScrollBar()->sizeHint().height());
    places_->resizeColumnsToContents();
}

// Low, since it stands over the window where the screen has no room beside it.
QSize ChangesPanel::sizeHint() const {
    constexpr int linesOfList = 5;
    const int list = linesOfList * QFontMetrics{list_->font()}.lineSpacing() + 2 * list_->frameWidth();
    return QWidget::sizeHint() - QSize{0, list_->sizeHint().height() - list};
}

void ChangesPanel::refresh() {
    fillList();
    fillPlaces();
}

void ChangesPanel::fillList() {
    const QListWidgetItem* chosen = list_->currentItem();
    const QVariant kept = chosen ? chosen->data(changeNumber) : QVariant{};
    const QSignalBlocker quiet{list_};
    list_->clear();
    const auto add = [&](const QString& words, int number, int race) {
        auto* line = new QListWidgetItem{words, list_};
        line->setData(changeNumber, number);
        line->setData(raceOfLine, race);
        if (kept == number) list_->setCurrentItem(line);
    };
    const auto standing = changes.standing();
    for (auto number = static_cast<int>(standing.size()); number > 0; --number) {
        const Change& change = standing[static_cast<std::size_t>(number - 1)];
        add(wordsOf(change), number, change.race);
    }
    if (changes.isOpen()) add(tr("The card as it was opened"), 0, 0);
    offerWayBack();
}

void ChangesPanel::offerWayBack() {
    const QListWidgetItem* line = list_->currentItem();
    back_->setEnabled(
        line && CommandRunner::canRun(CommandId::UndoTo, numberArgument(line->data(changeNumber).toInt())));
}

void ChangesPanel::fillPlaces() {
    const int race = raceOnShow();
    const bool isThere = changes.isOpen() && race >= 1 && race <= ratedRaces;
    heading_->setText(isThere ? tr("Race %1: the program's selections and mine").arg(race) : QString{});
    const auto compared = isThere ? programAndMine(changes.cardAsLoaded(), card, race)
                                  : std::array<ComparedPlace, rankedPlaces>{};
    for (int row = 0; row < rankedPlaces; ++row) {
        const auto& [program, mine] = compared[static_cast<std::size_t>(row)];
        const bool moved = compared[static_cast<std::size_t>(row)].isMoved();
        const auto put = [&](int column, const QString& text) { places_->item(row, column)->setText(text); };
        put(place, QString{"S%1"}.arg(row + 1));
        put(programNumber, shown(program.programNumber));
        put(programHorse, shown(program.horse));
        put(programRating, shown(program.rating));
        put(mark, moved ? QString{movedMark} : QString{});
        put(myNumber, shown(mine.programNumber));
        put(myHorse, shown(mine.horse));
        put(myRating, shown(mine.rating));
        for (int column = 0; column < placeColumns; ++column) {
            QTableWidgetItem& cell = *places_->item(row, column);
            cell.setToolTip(moved ? tr("Another horse than the program's") : QString{});
            QFont font = places_->font();
            font.setBold(moved);
            cell.setFont(font);
        }
    }
    places_->resizeColumnsToContents();
}

void ChangesPanel::showRaceOf(const QListWidgetItem* line) {
    const int race = line->data(raceOfLine).toInt();
    if (race > 0 && race != raceOnShow()) runner_.run(CommandId::RaceButton, numberArgument(race));
}

void ChangesPanel::goBack() {
    if (const QListWidgetItem* line = list_->currentItem())
        runner_.run(CommandId::UndoTo, numberArgument(line->data(changeNumber).toInt()));
}

} // namespace quillon
