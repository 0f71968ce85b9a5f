#include "desktop/race_page.h"

#include "desktop/past_lines_panel.h"
#include "screen/view_layouts.h"

#include <QVBoxLayout>

#include <numeric>

namespace quillon {
namespace {

constexpr int leastWideTwips = 27600; ///< a window 1900 pixels wide, as a maximised one on a wide screen is
constexpr int spacing = 4;            ///< pixels
constexpr int besideTable = 2350;     ///< twips of the buttons and signs beside the entries

int widthOf(std::span<const ViewColumn> columns) {
    return std::accumulate(columns.begin(), columns.end(), 0,
                           [](int sum, const ViewColumn& column) { return sum + column.width; });
}

} // namespace

RacePage::RacePage(Appearance& appearance, QWidget* parent)
    : QScrollArea{parent}, appearance_{appearance}, inside_{new QWidget{this}} {
    setObjectName("RacePage");
    setWidget(inside_);
    setWidgetResizable(true);
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
    connect(&appearance_, &Appearance::changed, this, &RacePage::turn);
}

void RacePage::arrange(const RacePageParts& parts) {
    lines_ = parts.lines;
    left_ = new QWidget{inside_};
    auto* column = new QVBoxLayout{left_};
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(spacing);
    column->addWidget(parts.entries);
    column->addWidget(parts.board);
    column->addWidget(parts.lines->entryPlace(), 1);
    body_ = new QBoxLayout{QBoxLayout::TopToBottom};
    body_->setSpacing(spacing);
    body_->addWidget(left_);
    body_->addWidget(parts.lines);
    auto* page = new QVBoxLayout{inside_};
    page->setContentsMargins(0, 0, 0, 0);
    page->setSpacing(spacing);
    page->addWidget(parts.header);
    page->addLayout(body_, 1);
    // Once they are laid out.
    connect(
        lines_, &PastLinesPanel::entryShown, this, [this](QWidget* lines) { ensureWidgetVisible(lines); },
        Qt::QueuedConnection);
    connect(
        lines_, &PastLinesPanel::entryClosed, this, [this] { ensureVisible(0, 0); }, Qt::QueuedConnection);
    turn();
}

// Side by side each has its share of the width, as its columns ask for it.
void RacePage::turn() {
    if (!body_) return;
    const bool beside = width() >= appearance_.pixels(leastWideTwips);
    lines_->setEntryApart(beside);
    body_->setDirection(beside ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
    body_->setStretch(0, beside ? widthOf(raceColumns()) + besideTable : 0);
    body_->setStretch(1, beside ? widthOf(dataColumns()) : 1);
}

void RacePage::resizeEvent(QResizeEvent* event) {
    QScrollArea::resizeEvent(event);
    turn();
}

} // namespace quillon
