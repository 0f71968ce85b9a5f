#include "desktop/page_sheet.h"

#include <QFontMetricsF>
#include <QStringList>

#include <algorithm>

namespace quillon {
namespace {

constexpr qreal smallestPoints = 4.5;
constexpr qreal step = 0.25;
constexpr qreal hair = 0.4; ///< the outline of a cloth

QString cutToFit(QString text, qreal width, qreal points, bool bold) {
    const QChar dots{0x2026};
    while (!text.isEmpty() && paperWidth(text + dots, points, bold) > width) text.chop(1);
    return text + dots;
}

QStringList brokenInto(const QString& text, qreal width, qreal points, bool bold) {
    QStringList lines;
    for (const QString& word : text.split(' ', Qt::SkipEmptyParts)) {
        const QString longer = lines.isEmpty() ? word : lines.back() + ' ' + word;
        if (!lines.isEmpty() && paperWidth(longer, points, bold) <= width)
            lines.back() = longer;
        else
            lines.push_back(word);
    }
    return lines;
}

bool fits(const QStringList& lines, qreal width, qreal points, bool bold, int most) {
    return lines.size() <= most && std::all_of(lines.begin(), lines.end(), [=](const QString& line) {
               return paperWidth(line, points, bold) <= width;
           });
}

} // namespace

QFont paperFont(qreal pixels, bool bold) {
    QFont font;
    font.setFamilies({"Nimbus Sans", "Arial", "Liberation Sans", "Helvetica", "DejaVu Sans"});
    font.setStyleHint(QFont::SansSerif);
    font.setHintingPreference(QFont::PreferNoHinting);
    font.setPixelSize(std::max(1, static_cast<int>(pixels))); // never larger than its place was measured for
    font.setBold(bold);
    return font;
}

// Measured in large letters, so that the screen's pixels don't matter.
qreal paperWidth(const QString& text, qreal points, bool bold) {
    constexpr qreal measured = 400;
    static const QFontMetricsF regularFace{paperFont(measured, false)};
    static const QFontMetricsF boldFace{paperFont(measured, true)};
    return (bold ? boldFace : regularFace).horizontalAdvance(text) * points / measured;
}

void Sheet::text(const QRectF& place, const QString& text, TextStyle style) {
    if (text.isEmpty()) return;
    style.points = std::min(style.points, place.height() / lineHeight);
    const qreal widthPerPoint = paperWidth(text, 1, style.bold);
    if (widthPerPoint * style.points > place.width())
        style.points = std::max(std::min(style.points, smallestPoints), place.width() / widthPerPoint);
    PageItem item{.place = place,
                  .text = text,
                  .points = style.points,
                  .bold = style.bold,
                  .align = style.align,
                  .ink = style.ink};
    constexpr qreal rounding = 0.001;
    item.isCut = widthPerPoint * style.points > place.width() + rounding;
    if (item.isCut) item.text = cutToFit(text, place.width(), style.points, style.bold);
    page_.push_back(std::move(item));
}

int Sheet::lines(const QRectF& place, const QString& text, TextStyle style, int most) {
    QStringList lines = brokenInto(text, place.width(), style.points, style.bold);
    while (style.points - step >= smallestPoints &&
           !fits(lines, place.width(), style.points, style.bold, most)) {
        style.points -= step;
        lines = brokenInto(text, place.width(), style.points, style.bold);
    }
    while (lines.size() > most) { // the last line is cut, and told as such
        const QString rest = lines.takeLast();
        lines.back() += ' ' + rest;
    }
    const qreal height = style.points * lineHeight;
    for (qsizetype at = 0; at < lines.size(); ++at)
        this->text({place.left(), place.top() + static_cast<qreal>(at) * height, place.width(), height},
                   lines[at], style);
    return static_cast<int>(lines.size());
}

void Sheet::rule(qreal left, qreal right, qreal y, qreal thickness, const QColor& ink) {
    page_.push_back({.kind = PageItem::Kind::rule,
                     .place = {left, y, right - left, 0},
                     .ink = ink,
                     .thickness = thickness});
}

void Sheet::box(const QRectF& place, const QColor& fill, qreal thickness) {
    page_.push_back({.kind = PageItem::Kind::box, .place = place, .fill = fill, .thickness = thickness});
}

void Sheet::cloth(const QRectF& place, const PaperNumber& number, qreal points) {
    if (number.text.isEmpty()) return;
    box(place, number.cloth, hair);
    const qreal inside = 1;
    text(place.adjusted(inside, 0, -inside, 0), number.text,
         {.points = points, .bold = true, .align = Qt::AlignHCenter, .ink = number.ink});
}

} // namespace quillon
