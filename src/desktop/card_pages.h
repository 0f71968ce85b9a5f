// Where everything of a card stands on its pages, in points of paper. Nothing is drawn here.
#pragma once

#include "desktop/paper_card.h"

#include <QFont>
#include <QRectF>
#include <QSizeF>

#include <vector>

namespace quillon {

/// A text in one line, a filled or outlined box, or a rule.
struct PageItem {
    enum class Kind { text, box, rule };

    Kind kind = Kind::text;
    QRectF place{};
    QString text{};
    qreal points = 0; ///< height of its letters
    bool bold = false;
    Qt::Alignment align = Qt::AlignLeft;
    QColor ink = Qt::black;
    QColor fill{};       ///< of a box; none where it is not valid
    qreal thickness = 0; ///< of a rule or an outline; 0 none
    bool isCut = false;  ///< even its smallest letters had no room for the whole text
};
using Page = std::vector<PageItem>;

struct CardPageChoice {
    int racesPerPage = 1; ///< or 2
    bool overview = true; ///< a page of all races before them
};

/// The pages of a card on paper whose printable part has this size.
std::vector<Page> cardPages(const PaperCard& card, const QSizeF& size, const CardPageChoice& choice);

/// The face of the pages: proportional, with figures of one width. Sized in device pixels.
QFont paperFont(qreal pixels, bool bold);

/// How wide a text is in points.
qreal paperWidth(const QString& text, qreal points, bool bold);

} // namespace quillon
