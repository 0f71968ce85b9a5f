#include "desktop/notice_bar.h"

#include <QScrollBar>
#include <QToolButton>

#include <algorithm>

namespace quillon {
namespace {

constexpr QChar warning{0x26A0};
constexpr int spacing = 2;              ///< pixels
constexpr std::size_t linesInSight = 3; ///< so that a race stays in sight below them
// The same in light and in dark.
const char* const rowStyle =
    "QWidget#Notice { background-color: #ffefb0; border: 1px solid #a08000; border-radius: 3px; }"
    "QWidget#Notice QLabel { color: black; }";

} // namespace

NoticeBar::NoticeBar(Appearance& appearance, QWidget* parent)
    : QWidget{parent}, appearance_{appearance}, scroll_{new QScrollArea{this}}, all_{new QPushButton{this}} {
    setObjectName("NoticeBar");
    auto* inside = new QWidget{scroll_};
    column_ = new QVBoxLayout{inside};
    column_->setContentsMargins(0, 0, 0, 0);
    column_->setSpacing(spacing);
    column_->setAlignment(Qt::AlignTop);
    scroll_->setWidget(inside);
    scroll_->setWidgetResizable(true);
    scroll_->setFrameShape(QFrame::NoFrame);
    scroll_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    scroll_->setFocusPolicy(Qt::NoFocus);
    all_->setObjectName("NoticeCloseAll");
    all_->setToolTip(tr("I have read all of these"));
    connect(all_, &QPushButton::clicked, this, &NoticeBar::takeAllRead);
    auto* outer = new QVBoxLayout{this};
    outer->setContentsMargins(0, 0, 0, 0);
    outer->setSpacing(spacing);
    outer->addWidget(scroll_);
    outer->addWidget(all_, 0, Qt::AlignRight);
    hide();
    connect(&appearance_, &Appearance::changed, this, &NoticeBar::lay);
}

NoticeBar::Line* NoticeBar::find(const QString& key) {
    const auto found =
        std::find_if(lines_.begin(), lines_.end(), [&](const Line& line) { return line.key == key; });
    return found == lines_.end() ? nullptr : &*found;
}

void NoticeBar::addLine(const QString& key) {
    auto* row = new QWidget{scroll_->widget()};
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
    column_->insertWidget(0, row);
    scroll_->verticalScrollBar()->setValue(0);
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
    holdHeight();
}

// What waits for an action stays.
void NoticeBar::takeAllRead() {
    std::vector<QString> read;
    for (const Line& line : lines_)
        if (line.buttons->isEmpty()) read.push_back(line.key);
    for (const QString& key : read) take(key);
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
    all_->setFont(appearance_.viewFont(10, true));
    holdHeight();
}

void NoticeBar::holdHeight() {
    const std::size_t inSight = std::min(linesInSight, lines_.size());
    all_->setVisible(lines_.size() > inSight);
    all_->setText(tr("OK to All %1").arg(lines_.size()));
    constexpr int besideLines = 40; // pixels of margins and a scroll bar
    // Before it is shown for the first time it has no width of its own.
    const int width =
        isVisible() || !parentWidget() ? scroll_->viewport()->width() : parentWidget()->width() - besideLines;
    int height = -spacing;
    for (std::size_t at = 0; at < lines_.size(); ++at) {
        const QLayout& row = *lines_[at].row->layout();
        const int needed = std::max(row.sizeHint().height(), row.heightForWidth(width));
        lines_[at].row->setFixedHeight(needed); // a text that wraps has no height of its own
        if (at + inSight >= lines_.size()) height += spacing + needed;
    }
    scroll_->setFixedHeight(std::max(height, 0));
}

void NoticeBar::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    holdHeight();
}

} // namespace quillon
