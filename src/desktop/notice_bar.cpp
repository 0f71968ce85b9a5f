#include "desktop/notice_bar.h"

#include <QHBoxLayout>
#include <QToolButton>

#include <algorithm>

namespace quillon {
namespace {

constexpr QChar warning{0x26A0};
// The same in light and in dark.
const char* const rowStyle =
    "QWidget#Notice { background-color: #ffefb0; border: 1px solid #a08000; border-radius: 3px; }"
    "QWidget#Notice QLabel { color: black; }";

} // namespace

NoticeBar::NoticeBar(Appearance& appearance, QWidget* parent)
    : QWidget{parent}, appearance_{appearance}, column_{new QVBoxLayout{this}} {
    setObjectName("NoticeBar");
    column_->setContentsMargins(0, 0, 0, 0);
    column_->setSpacing(2);
    hide();
    connect(&appearance_, &Appearance::changed, this, &NoticeBar::lay);
}

NoticeBar::Line* NoticeBar::find(const QString& key) {
    const auto found =
        std::find_if(lines_.begin(), lines_.end(), [&](const Line& line) { return line.key == key; });
    return found == lines_.end() ? nullptr : &*found;
}

void NoticeBar::addLine(const QString& key) {
    auto* row = new QWidget{this};
    row->setObjectName("Notice");
    row->setAttribute(Qt::WA_StyledBackground);
    row->setStyleSheet(rowStyle);
    auto* text = new QLabel{row};
    text->setObjectName("NoticeText." + key);
    text->setTextFormat(Qt::PlainText);
    text->setWordWrap(true);
    text->setTextInteractionFlags(Qt::TextSelectableByMouse);
    auto* action = new QPushButton{row};
    action->setObjectName("NoticeAction." + key);
    auto* close = new QToolButton{row};
    close->setObjectName("NoticeClose." + key);
    close->setText(tr("OK"));
    close->setToolTip(tr("I have read this"));
    close->setAccessibleName(close->toolTip());
    close->setFocusPolicy(Qt::StrongFocus);
    auto* line = new QHBoxLayout{row};
    line->setContentsMargins(8, 3, 4, 3);
    line->addWidget(text, 1);
    line->addWidget(action);
    line->addWidget(close);
    column_->addWidget(row);
    lines_.push_back({key, row, text, action, {}});
    connect(close, &QToolButton::clicked, this, [this, key] { take(key); });
    connect(action, &QPushButton::clicked, this, [this, key] {
        if (const Line* pressed = find(key); pressed && pressed->act) std::function{pressed->act}();
    });
}

void NoticeBar::put(const Notice& notice) {
    if (!find(notice.key)) addLine(notice.key);
    Line& line = *find(notice.key);
    line.text->setText(QString{warning} + "  " + notice.text);
    line.text->setAccessibleName(notice.text);
    line.action->setText(notice.action);
    line.action->setVisible(!notice.action.isEmpty());
    line.act = notice.act;
    lay();
    show();
}

// Deleted later: it may be the one whose button was pressed.
void NoticeBar::take(const QString& key) {
    Line* line = find(key);
    if (!line) return;
    line->row->hide();
    column_->removeWidget(line->row);
    line->row->setParent(nullptr);
    line->row->deleteLater();
    lines_.erase(lines_.begin() + (line - lines_.data()));
    setVisible(!lines_.empty());
}

QString NoticeBar::textOf(const QString& key) const {
    for (const Line& line : lines_)
        if (line.key == key) return line.text->accessibleName();
    return {};
}

void NoticeBar::lay() {
    for (const Line& line : lines_) {
        line.text->setFont(appearance_.viewFont(10, true));
        line.action->setFont(appearance_.viewFont(10, true));
    }
}

} // namespace quillon
