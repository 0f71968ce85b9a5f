#include "desktop/notes_panel.h"

#include "card/columns.h"
#include "desktop/cell_table_view.h"
#include "desktop/command_texts.h"
#include "desktop/mark_texts.h"
#include "desktop/shown_text.h"
#include "results/card_notes.h"
#include "results/on_show.h"

#include <QHBoxLayout>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include <array>

namespace quillon {
namespace {

constexpr int panelTwips = 5400;
constexpr int longestNote = 1000;

/// Whom a note may be on, in the order of the list.
enum Subject { race, horse, driver, trainer };

} // namespace

NotesPanel::NotesPanel(CommandRunner& runner, Appearance& appearance, QWidget* parent)
    : QWidget{parent}, runner_{runner}, appearance_{appearance}, list_{new QListWidget{this}},
      label_{new QLabel{tr("&New note on:"), this}}, subject_{new QComboBox{this}},
      text_{new QLineEdit{this}}, add_{new QPushButton{buttonCaption(CommandId::Note), this}} {
    setObjectName("NotesPanel");
    build();
    connect(&appearance_, &Appearance::changed, this, &NotesPanel::lay);
    lay();
    refresh();
}

void NotesPanel::build() {
    list_->setObjectName("NoteList");
    list_->setAccessibleName(tr("Notes on the race and on the entry"));
    list_->setWordWrap(true);
    list_->setAlternatingRowColors(true);
    subject_->setObjectName("NoteSubject");
    subject_->setAccessibleName(tr("Whom the new note is on"));
    label_->setBuddy(subject_);
    text_->setObjectName("NoteText");
    text_->setAccessibleName(tr("Text of the new note"));
    text_->setPlaceholderText(tr("Type a note, Enter keeps it"));
    text_->setMaxLength(longestNote);
    add_->setObjectName("AddNote");
    setCommand(*add_, CommandId::Note);
    add_->setAccessibleName(captionOf(CommandId::Note));
    add_->setToolTip(tipOf(CommandId::Note));
    connect(text_, &QLineEdit::textChanged, this, &NotesPanel::offerAdding);
    connect(text_, &QLineEdit::returnPressed, this, &NotesPanel::add);
    connect(add_, &QPushButton::clicked, this, &NotesPanel::add);
    connect(subject_, &QComboBox::currentIndexChanged, this, &NotesPanel::offerAdding);

    auto* column = new QVBoxLayout{this};
    column->setContentsMargins(4, 2, 4, 4);
    column->setSpacing(4);
    column->addWidget(list_, 1);
    column->addWidget(label_);
    column->addWidget(subject_);
    column->addWidget(text_);
    column->addWidget(add_, 0, Qt::AlignLeft);
    setFocusProxy(text_);
}

void NotesPanel::lay() {
    setMinimumWidth(appearance_.pixels(panelTwips));
    for (QWidget* part :
         {static_cast<QWidget*>(list_), static_cast<QWidget*>(label_), static_cast<QWidget*>(subject_),
          static_cast<QWidget*>(text_), static_cast<QWidget*>(add_)})
        part->setFont(appearance_.viewFont(10, false));
}

// Low, since it stands over the window where the screen has no room beside it.
QSize NotesPanel::sizeHint() const {
    constexpr int linesOfList = 6;
    const int list = linesOfList * QFontMetrics{list_->font()}.lineSpacing() + 2 * list_->frameWidth();
    return QWidget::sizeHint() - QSize{0, list_->sizeHint().height() - list};
}

void NotesPanel::follow(CellTableView& entries) {
    connect(entries.selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this, &entries](const QModelIndex& cell) {
                if (cell.isValid())
                    takeEntry(entries.cells().tableRow(cell), entries.cells().tableColumn(cell));
            });
}

// A note is on whom the keyboard or the mouse went to last.
void NotesPanel::takeEntry(int row, int column) {
    row_ = row;
    fillSubjects();
    subject_->setCurrentIndex(column == RaceColumn::driver ? driver : horse);
    fillList();
}

void NotesPanel::refresh() {
    const int shownRace = raceViewOnShow();
    if (shownRace != race_) row_ = 1;
    race_ = shownRace;
    notes.takeUp();
    fillSubjects();
    fillList();
    offerAdding();
}

// The place in the list stays, so that several notes on one follow each other.
void NotesPanel::fillSubjects() {
    const EntryNames names = entryNames(race_, row_);
    const std::array<std::pair<QString, Text>, 4> subjects{{
        {tr("Race %1").arg(race_), nameOfRace(race_)},
        {tr("Horse: %1").arg(shown(names.horse)), names.horse},
        {tr("Driver: %1").arg(shown(names.driver)), names.driver},
        {tr("Trainer: %1").arg(shown(names.trainer)), names.trainer},
    }};
    const QSignalBlocker quiet{subject_};
    const int before = subject_->currentIndex();
    subject_->clear();
    for (const auto& [caption, name] : subjects) subject_->addItem(caption, shown(name));
    subject_->setCurrentIndex(before < 0 ? horse : before);
}

void NotesPanel::fillList() {
    list_->clear();
    std::vector<NoteLine> found = notes.onRace(race_);
    for (NoteLine& note : notesOnEntry(race_, row_)) found.push_back(std::move(note));
    for (const NoteLine& note : found) list_->addItem(wordsOf(note));
}

void NotesPanel::offerAdding() {
    const bool isWhole = !text_->text().trimmed().isEmpty() && !subject_->currentData().toString().isEmpty();
    add_->setEnabled(isWhole && CommandRunner::canRun(CommandId::Note));
}

// The text stays where the note could not be kept.
void NotesPanel::add() {
    if (!add_->isEnabled()) return;
    const Text name = typed(subject_->currentData().toString());
    const auto before = list_->count();
    runner_.run(CommandId::Note, textArgument(name + " = " + typed(text_->text())));
    refresh();
    if (list_->count() > before) text_->clear();
}

} // namespace quillon
