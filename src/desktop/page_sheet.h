// A page that is being laid out: texts that shrink where they would not fit.
#pragma once

#include "desktop/paper_card.h"

#include <QFont>
#include <QRectF>

#include <utility>
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

/// The face of the pages: proportional, with figures of one width. Sized in device pixels.
QFont paperFont(qreal pixels, bool bold);

/// How wide a text is in points.
qreal paperWidth(const QString& text, qreal points, bool bold);

/// How a text stands in its place.
struct TextStyle {
    qreal points = 8;
    bool bold = false;
    Qt::Alignment align = Qt::AlignLeft;
    QColor ink = Qt::black;
};

/// The height of a line of text, per point of its letters.
constexpr qreal lineHeight = 1.2;

class Sheet {
public:
    /// A text in one line, in letters as large as wanted or as its place allows.
    void text(const QRectF& place, const QString& text, TextStyle style);

    /// The same in up to so many lines from the top; the lines that it took.
    int lines(const QRectF& place, const QString& text, TextStyle style, int most);

    void rule(qreal left, qreal right, qreal y, qreal thickness, const QColor& ink = Qt::black);
    void box(const QRectF& place, const QColor& fill, qreal thickness);

    /// A program number on its cloth: the number is whole in every colour, and in none.
    void cloth(const QRectF& place, const PaperNumber& number, qreal points);

    Page take() { return std::move(page_); }

private:
    Page page_;
};

} // namespace quillon
