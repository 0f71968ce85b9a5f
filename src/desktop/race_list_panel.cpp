#include "desktop/race_list_panel.h"

#include "desktop/command_texts.h"
#include "desktop/shown_text.h"

#include <QVBoxLayout>

namespace quillon {
namespace {

constexpr QChar checkMark{0x2713};

// Line `row` of the list is race row + 1.
const Button* checkOf(int row) {
    const auto race = static_cast<std::size_t>(row) + 1;
    return race < theScreen.raceChecks.size() ? &theScreen.raceChecks[race] : nullptr;
}

} // namespace

RaceListPanel::RaceListPanel(CommandRunner& runner, Appearance& appearance, QWidget* parent)
    : QWidget{parent}, runner_{runner}, appearance_{appearance}, list_{new QListWidget{this}} {
    setObjectName("RaceListPanel");
    auto* column = new QVBoxLayout{this};
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(list_);
    list_->setObjectName("RaceList");
    setCommand(*list_, CommandId::RaceList);
    list_->setAccessibleName(captionOf(CommandId::RaceList));
    list_->setToolTip(tipOf(CommandId::RaceList));
    list_->setUniformItemSizes(true);
    connect(list_, &QListWidget::itemActivated, this,
            [this](const QListWidgetItem* item) { open(list_->row(item)); });
    connect(&appearance_, &Appearance::changed, this, &RaceListPanel::lay);
    setFocusProxy(list_);
    lay();
}

void RaceListPanel::lay() { list_->setFont(appearance_.viewFont(10, false)); }

void RaceListPanel::refresh() {
    if (theScreen.raceList.lines != lines_) fill();
    check();
}

void RaceListPanel::fill() {
    lines_ = theScreen.raceList.lines;
    current_ = -1;
    list_->clear();
    for (const Text& line : lines_) list_->addItem(shown(line));
}

void RaceListPanel::check() {
    int current = -1;
    for (int row = 0; row < list_->count(); ++row) {
        const Button* mark = checkOf(row);
        const bool checked = mark != nullptr && mark->visible;
        const QString line = shown(lines_[static_cast<std::size_t>(row)]);
        QListWidgetItem& item = *list_->item(row);
        item.setText(checked ? QString{"%1   %2 %3"}.arg(line, checkMark, shown(mark->caption)) : line);
        QFont font = list_->font();
        font.setBold(checked);
        item.setFont(font);
        item.setData(Qt::AccessibleTextRole, checked ? tr("%1, on show").arg(line) : line);
        if (checked) current = row;
    }
    if (current == current_) return;
    current_ = current;
    if (current >= 0) list_->setCurrentRow(current);
}

void RaceListPanel::open(int row) {
    if (row < 0 || static_cast<std::size_t>(row) >= lines_.size()) return;
    const Text line = lines_[static_cast<std::size_t>(row)];
    if (runner_.run(CommandId::RaceList, textArgument(line))) emit raceOpened();
}

} // namespace quillon
