#include "desktop/pick_list.h"

#include "desktop/shown_text.h"

#include <QKeyEvent>

#include <algorithm>

namespace quillon {

PickList::PickList(QWidget* parent) : QListWidget{parent} {
    connect(this, &QListWidget::itemClicked, this, [this](QListWidgetItem* item) { emit picked(row(item)); });
}

void PickList::showLines(const ChoiceList& list) {
    if (lines_ != list.lines) {
        lines_ = list.lines;
        clear();
        for (const Text& line : lines_) addItem(shown(line));
    }
    const auto chosen = std::find(lines_.begin(), lines_.end(), list.caption);
    if (chosen != lines_.end()) setCurrentRow(static_cast<int>(chosen - lines_.begin()));
}

void PickList::keyPressEvent(QKeyEvent* event) {
    const bool picks = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (!picks) return QListWidget::keyPressEvent(event);
    if (currentRow() >= 0) emit picked(currentRow());
}

} // namespace quillon
