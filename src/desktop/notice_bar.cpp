#include "desktop/notice_bar.h"

#include <QPushButton>
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
    auto* buttons = new QHBoxLayout;
    auto* close = new QToolButton{row};
    close->setObjectName("NoticeClose." + key);
    close->setText(tr("OK"));
    close->setToolTip(tr("I have read this"));
    close->setAccessibleName(close->toolTip());
    close->setFocusPolicy(Qt::StrongFocus);
    auto* line = new QHBoxLayout{row};
    line->setContentsMargins(8, 3, 4, 3);
    line->addWidget(text, 1);
    line->addLayout(buttons);
    line->addWidget(close);
    column_->addWidget(row);
    lines_.push_back({key, row, text, buttons});
    connect(close, &QToolButton::clicked, this, [this, key] { take(key); });
}

// "NoticeAction.pending", and "NoticeAction.pending.2" for a second one. Those of before go later: one of them
// may be pressed just now.
void NoticeBar::setActions(const Line& line, const std::vector<NoticeAction>& actions) {
    while (QLayoutItem* const item = line.buttons->takeAt(0)) {
        item->widget()->hide();
        item->widget()->setObjectName({});
        item->widget()->deleteLater();
        delete item;
    }
    for (std::size_t at = 0; at < actions.size(); ++at) {
        auto* button = new QPushButton{actions[at].caption, line.row};
        button->setObjectName("NoticeAction." + line.key +
                              (at == 0 ? QString{} : "." + QString::number(at + 1)));
        connect(button, &QPushButton::clicked, this, [act = actions[at].act] { std::function{act}(); });
        line.buttons->addWidget(button);
    }
}

void NoticeBar::put(const Notice& notice) {
    if (!find(notice.key)) addLine(notice.key);
    Line& line = *find(notice.key);
    line.text->setText(QString{warning} + "  " + notice.text);
    line.text->setAccessibleName(notice.text);
    setActions(line, notice.actions);
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
        for (int at = 0; at < line.buttons->count(); ++at)
            line.buttons->itemAt(at)->widget()->setFont(appearance_.viewFont(10, true));
    }
}

} // namespace quillon
