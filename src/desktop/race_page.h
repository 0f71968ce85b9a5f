// The page of a race: its heading, its entries with the board, and past lines below them. Where the window is wide enough,
// the race's lines stand beside them, and below are those of an entry.
#pragma once

#include "desktop/appearance.h"

#include <QBoxLayout>
#include <QScrollArea>

namespace quillon {

class PastLinesPanel;

/// The parts of the page, from top to bottom.
struct RacePageParts {
    QWidget* header = nullptr;
    QWidget* entries = nullptr;
    QWidget* board = nullptr;
    PastLinesPanel* lines = nullptr;
};

/// Scrolls where the window is too small for its parts.
class RacePage : public QScrollArea {
    Q_OBJECT

public:
    explicit RacePage(Appearance& appearance, QWidget* parent = nullptr);

    /// The widget that the parts are made in.
    QWidget* inside() { return inside_; }
    void arrange(const RacePageParts& parts);

    bool hasLinesBeside() const { return body_->direction() == QBoxLayout::LeftToRight; }

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void turn();

    Appearance& appearance_;
    QWidget* inside_;
    QBoxLayout* body_ = nullptr; ///< entries and board, then past lines
    QWidget* left_ = nullptr;    ///< entries and board, and an entry's lines where they stand apart
    PastLinesPanel* lines_ = nullptr;
};

} // namespace quillon
