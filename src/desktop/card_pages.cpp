#include "desktop/card_pages.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>
#include <numeric>

namespace quillon {
namespace {

QString tr(const char* text) { return QCoreApplication::translate("CardPages", text); }

const QColor shade{0xE8, 0xE8, 0xE8};
const QColor faint{0x90, 0x90, 0x90};
constexpr qreal thin = 0.4;
constexpr qreal thick = 1.2;
constexpr qreal footHeight = 14;
constexpr qreal raceGap = 14; ///< between two races of a page

// All in points.
constexpr qreal headTop = 22;     ///< the race's number
constexpr qreal wordPoints = 8;   ///< conditions and wagers
constexpr qreal columnHeads = 17; ///< two lines of heads
constexpr qreal stripHeight = 27; ///< the selections
constexpr qreal tallestRow = 32;
constexpr qreal tallestOverviewRow = 44;
constexpr qreal ruledLine = 20; ///< from one line to write on to the next
constexpr qreal clothWidth = 24;
constexpr qreal gap = 4;

struct Column {
    const char* head;
    int width; ///< its share of the row
    Qt::Alignment align;
};

// clang-format off
enum EntryCell { horseCell, driverCell, oddsCell, postCell, ratingCell, placeCell, noteCell };
constexpr std::array entryColumns{
    Column{"Horse",       30, Qt::AlignLeft},
    Column{"Driver, UDR", 25, Qt::AlignLeft},
    Column{"M/L",          7, Qt::AlignRight},
    Column{"Post",         6, Qt::AlignRight},
    Column{"Rating",       9, Qt::AlignRight},
    Column{"",             6, Qt::AlignHCenter},
    Column{"Notes",       25, Qt::AlignLeft},
};
constexpr std::array<Column, paperLineColumns> lineColumns{
    Column{"Track",  26, Qt::AlignLeft},
    Column{"Purse",  26, Qt::AlignRight},
    Column{"Class",  50, Qt::AlignLeft},
    Column{"CR",     14, Qt::AlignRight},
    Column{"1/4",    22, Qt::AlignRight},
    Column{"1/2",    26, Qt::AlignRight},
    Column{"3/4",    26, Qt::AlignRight},
    Column{"Mile",   26, Qt::AlignRight},
    Column{"PP",     12, Qt::AlignRight},
    Column{"1C",     18, Qt::AlignRight},
    Column{"2C",     18, Qt::AlignRight},
    Column{"3C",     18, Qt::AlignRight},
    Column{"St/Fin", 24, Qt::AlignRight},
    Column{"Last",   22, Qt::AlignRight},
    Column{"Time",   26, Qt::AlignRight},
};
constexpr std::array overviewColumns{
    Column{"Race",   30, Qt::AlignLeft},
    Column{"",       46, Qt::AlignLeft},
    Column{"S1",     88, Qt::AlignLeft},
    Column{"S2",     88, Qt::AlignLeft},
    Column{"S3",     88, Qt::AlignLeft},
    Column{"S4",     88, Qt::AlignLeft},
    Column{"Margin, bet", 46, Qt::AlignRight},
};
// clang-format on

// The places of columns side by side, by their shares.
template <std::size_t count>
std::array<QRectF, count> spread(const std::array<Column, count>& columns, const QRectF& row) {
    const int shares = std::accumulate(columns.begin(), columns.end(), 0,
                                       [](int sum, const Column& column) { return sum + column.width; });
    std::array<QRectF, count> places;
    qreal left = row.left();
    for (std::size_t at = 0; at < count; ++at) {
        const qreal width = row.width() * columns.at(at).width / shares;
        places.at(at) = {left, row.top(), width - gap, row.height()};
        left += width;
    }
    return places;
}

template <std::size_t count>
void putHeads(Sheet& sheet, const std::array<Column, count>& columns, const QRectF& row) {
    constexpr qreal points = 6;
    const auto places = spread(columns, row);
    for (std::size_t at = 0; at < count; ++at)
        sheet.text(places.at(at), tr(columns.at(at).head),
                   {.points = points, .align = columns.at(at).align, .ink = faint.darker()});
}

// A race in its part of a page.
class RaceBlock {
public:
    RaceBlock(Sheet& sheet, const PaperCard& card, const PaperRace& race, const QRectF& place)
        : sheet_{sheet}, card_{card}, race_{race}, place_{place}, y_{place.top()} {}

    void put() {
        putHead();
        putColumnHeads();
        const qreal rowHeight = heightOfRows();
        for (const PaperEntry& entry : race_.entries) putEntry(entry, rowHeight);
        putSelections();
        putRoomToWrite();
    }

private:
    QRectF row(qreal height) const { return {place_.left(), y_, place_.width(), height}; }

    void putHead() {
        constexpr qreal numberPoints = 17;
        constexpr qreal factPoints = 10.5;
        const QString name = tr("RACE %1").arg(race_.label);
        const qreal nameWidth = std::min(place_.width() / 4, paperWidth(name, numberPoints, true) + 4 * gap);
        sheet_.text({place_.left(), y_, nameWidth, headTop}, name, {.points = numberPoints, .bold = true});
        const qreal titleWidth = place_.width() * 0.3;
        const qreal factsWidth = place_.width() - nameWidth - titleWidth - gap;
        sheet_.text({place_.left() + nameWidth, y_ + 1, factsWidth, headTop}, race_.facts,
                    {.points = factPoints, .bold = true});
        sheet_.text({place_.right() - titleWidth, y_ + 1, titleWidth, headTop}, card_.title,
                    {.points = wordPoints, .align = Qt::AlignRight});
        y_ += headTop;
        putWords(race_.conditions, 2);
        putWords(race_.wagering, 1);
        y_ += 2;
    }

    // Room is taken for all lines, so that the rows of two races on a page are alike.
    void putWords(const QString& words, int most) {
        const qreal height = wordPoints * lineHeight;
        const int taken = sheet_.lines(row(height * most), words, {.points = wordPoints}, most);
        y_ += height * taken;
    }

    QRectF besideCloth(const QRectF& row) const { return row.adjusted(clothWidth + gap, 0, 0, 0); }

    // The chosen line stands below the entry, left of the room to write.
    QRectF placeOfLine(const QRectF& row) const {
        QRectF line = besideCloth(row);
        line.setRight(spread(entryColumns, line)[noteCell].left() - gap);
        return line;
    }

    void putColumnHeads() {
        sheet_.rule(place_.left(), place_.right(), y_, thick);
        const QRectF upper{place_.left(), y_ + 1, place_.width(), columnHeads / 2 - 1};
        putHeads(sheet_, entryColumns, besideCloth(upper));
        putHeads(sheet_, lineColumns, placeOfLine(upper.translated(0, columnHeads / 2 - 1)));
        y_ += columnHeads;
    }

    qreal heightOfRows() const {
        const auto rows = static_cast<qreal>(std::max<std::size_t>(1, race_.entries.size()));
        return std::min(tallestRow, (place_.bottom() - y_ - stripHeight - 2 * gap) / rows);
    }

    void putEntry(const PaperEntry& entry, qreal height) {
        constexpr qreal largestName = 11;
        constexpr qreal largestLine = 7.5;
        const qreal upper = height * 0.58;
        const TextStyle name{.points = std::min(largestName, upper / lineHeight), .bold = true};
        const TextStyle word{.points = name.points * 0.85};
        sheet_.rule(place_.left(), place_.right(), y_, thin);
        sheet_.cloth({place_.left(), y_ + 1.5, clothWidth, height - 3}, entry.number, name.points * 1.2);

        const QRectF whole = besideCloth(row(height));
        auto places = spread(entryColumns, QRectF{whole.left(), whole.top(), whole.width(), upper});
        const auto put = [&](EntryCell cell, const QString& text, TextStyle style) {
            style.align = entryColumns.at(cell).align;
            sheet_.text(places.at(cell), text, style);
        };
        put(horseCell, entry.horse, name);
        put(driverCell, entry.driver, word);
        put(oddsCell, entry.morningLine, word);
        put(postCell, entry.post, word);
        put(ratingCell, entry.rating, name);
        putPlace(entry, places.at(placeCell), name.points);
        if (entry.isOut) {
            const qreal middle = places.at(horseCell).center().y();
            sheet_.rule(places.at(horseCell).left(), places.at(ratingCell).right(), middle, thick);
        }
        const QRectF below{place_.left(), y_ + upper, place_.width(), height - upper};
        putLine(entry, placeOfLine(below), std::min(largestLine, below.height() / lineHeight));
        const QRectF room{places.at(noteCell).left(), y_, places.at(noteCell).width(), height};
        sheet_.lines(room.adjusted(0, 1, 0, 0), entry.note, {.points = word.points}, 2);
        y_ += height;
    }

    // Of the four selections the first is white on black: it stands out without a colour.
    void putPlace(const PaperEntry& entry, const QRectF& place, qreal points) {
        if (entry.place.isEmpty()) return;
        const bool isFirst = entry.place == "S1";
        const bool isSelection = entry.place.startsWith('S');
        const QRectF box = place.adjusted(0, 1, 0, -1);
        if (isSelection) sheet_.box(box, isFirst ? QColor{Qt::black} : QColor{}, thin);
        sheet_.text(box.adjusted(1, 0, -1, 0), entry.place,
                    {.points = points * 0.8,
                     .bold = isSelection,
                     .align = Qt::AlignHCenter,
                     .ink = isFirst ? Qt::white : Qt::black});
    }

    void putLine(const PaperEntry& entry, const QRectF& place, qreal points) {
        if (!entry.noLine.isEmpty()) return sheet_.text(place, entry.noLine, {.points = points});
        const auto places = spread(lineColumns, place);
        for (std::size_t at = 0; at < entry.line.size(); ++at)
            sheet_.text(places.at(at), entry.line.at(at),
                        {.points = points, .align = lineColumns.at(at).align});
    }

    void putSelections() {
        sheet_.rule(place_.left(), place_.right(), y_, thick);
        y_ += gap;
        constexpr int parts = 5;
        const QRectF strip = row(stripHeight);
        const qreal width = strip.width() / parts;
        for (std::size_t at = 0; at < race_.selections.size(); ++at) {
            const PaperSelection& selection = race_.selections.at(at);
            const QRectF part{strip.left() + static_cast<qreal>(at) * width, strip.top(), width - gap,
                              stripHeight};
            putSelection(part, static_cast<int>(at) + 1, selection);
        }
        putMargin({strip.right() - width, strip.top(), width, stripHeight});
        y_ += stripHeight + gap;
    }

    void putSelection(const QRectF& part, int place, const PaperSelection& selection) {
        const qreal half = part.height() / 2;
        const QRectF number{part.left(), part.top(), clothWidth, part.height()};
        sheet_.cloth(number, selection.number, 13);
        const qreal left = number.right() + gap;
        const qreal width = part.right() - left;
        sheet_.text({left, part.top(), width, half}, selection.horse, {.points = 8.5, .bold = true});
        sheet_.text({left, part.top() + half, width, half},
                    QString{"S%1   %2"}.arg(place).arg(selection.rating), {.points = 8.5});
    }

    void putMargin(const QRectF& part) {
        if (race_.margin.isEmpty()) return;
        sheet_.box(part, race_.isClear ? shade : QColor{}, race_.isClear ? thick : thin);
        const qreal half = part.height() / 2;
        const QRectF inside = part.adjusted(gap, 0, -gap, 0);
        sheet_.text({inside.left(), inside.top(), inside.width(), half}, tr("Margin %1").arg(race_.margin),
                    {.points = 9, .bold = race_.isClear});
        sheet_.text({inside.left(), inside.top() + half, inside.width(), half}, race_.betMark,
                    {.points = 10, .bold = true});
    }

    void putRoomToWrite() {
        const QRectF room{place_.left(), y_, place_.width(), place_.bottom() - y_};
        if (room.height() < ruledLine) return;
        const int most = static_cast<int>(room.height() / (wordPoints * lineHeight));
        const int taken = sheet_.lines(room, race_.note, {.points = wordPoints}, most);
        const qreal top = y_ + taken * wordPoints * lineHeight;
        for (qreal y = top + ruledLine; y <= place_.bottom(); y += ruledLine)
            sheet_.rule(place_.left(), place_.right(), y, thin, faint);
    }

    Sheet& sheet_;
    const PaperCard& card_;
    const PaperRace& race_;
    QRectF place_;
    qreal y_;
};

void putOverviewRow(Sheet& sheet, const PaperRace& race, const QRectF& row) {
    const auto places = spread(overviewColumns, row);
    const qreal half = row.height() / 2;
    const qreal points = std::min<qreal>(10, half / lineHeight);
    const auto upper = [&](std::size_t at) {
        return QRectF{places.at(at).topLeft(), QSizeF{places.at(at).width(), half}};
    };
    const auto lower = [&](std::size_t at) { return upper(at).translated(0, half); };
    sheet.text(upper(0), race.label, {.points = points * 1.2, .bold = true});
    sheet.text(lower(0), race.postTime, {.points = points * 0.8});
    const QString distance = race.distance.isEmpty() ? QString{} : tr("%1 Mi").arg(race.distance);
    sheet.text(upper(1), QString{race.gait + "  " + distance}.trimmed(), {.points = points * 0.9});
    sheet.text(lower(1), race.purse, {.points = points * 0.9});
    for (std::size_t place = 0; place < race.selections.size(); ++place) {
        const PaperSelection& selection = race.selections.at(place);
        const QRectF cell = places.at(2 + place).adjusted(0, 1.5, 0, -1.5);
        const qreal number = std::min<qreal>(clothWidth - 4, cell.height());
        sheet.cloth({cell.left(), cell.top(), number, cell.height()}, selection.number, points * 1.1);
        const QRectF name = cell.adjusted(number + 3, 0, 0, 0);
        const TextStyle style{.points = std::min(points, name.height() / 2 / lineHeight), .bold = place == 0};
        if (paperWidth(selection.horse, style.points, style.bold) <= name.width()) {
            sheet.text(name, selection.horse, style);
        } else {
            const qreal left = name.height() - 2 * style.points * lineHeight;
            sheet.lines(name.adjusted(0, left / 2, 0, 0), selection.horse, style, 2);
        }
    }
    const std::size_t last = places.size() - 1;
    if (race.isClear) sheet.box(places.at(last).adjusted(-1, 1, 1, -1), shade, 0);
    sheet.text(upper(last), race.margin,
               {.points = points * 1.1, .bold = race.isClear, .align = Qt::AlignRight});
    sheet.text(lower(last), race.betMark, {.points = points, .bold = true, .align = Qt::AlignRight});
}

Page overviewPage(const PaperCard& card, const QRectF& place) {
    constexpr qreal titleHeight = 24;
    constexpr qreal headHeight = 10;
    Sheet sheet;
    sheet.text({place.left(), place.top(), place.width(), titleHeight}, card.title,
               {.points = 17, .bold = true});
    sheet.text({place.left(), place.top() + titleHeight, place.width(), headHeight + 2}, card.track,
               {.points = 8});
    qreal y = place.top() + titleHeight + headHeight + 2 * gap;
    putHeads(sheet, overviewColumns, {place.left(), y, place.width(), headHeight});
    y += headHeight;
    const qreal height =
        std::min(tallestOverviewRow, (place.bottom() - y) / static_cast<qreal>(card.races.size()));
    for (const PaperRace& race : card.races) {
        sheet.rule(place.left(), place.right(), y, thin);
        putOverviewRow(sheet, race, {place.left(), y, place.width(), height});
        y += height;
    }
    sheet.rule(place.left(), place.right(), y, thick);
    return sheet.take();
}

void putFoot(Page& page, const QSizeF& size, const QString& title, std::size_t number, std::size_t count) {
    Sheet sheet;
    const QRectF foot{0, size.height() - footHeight + 3, size.width(), footHeight - 3};
    const TextStyle style{.points = 7, .ink = faint.darker()};
    sheet.text({foot.left(), foot.top(), foot.width() / 2, foot.height()}, title, style);
    sheet.text({foot.center().x(), foot.top(), foot.width() / 2, foot.height()},
               tr("Page %1 of %2").arg(number).arg(count),
               {.points = style.points, .align = Qt::AlignRight, .ink = style.ink});
    for (PageItem& item : sheet.take()) page.push_back(std::move(item));
}

} // namespace

std::vector<Page> cardPages(const PaperCard& card, const QSizeF& size, const CardPageChoice& choice) {
    std::vector<Page> pages;
    if (card.races.empty()) return pages;
    const qreal edge = thick; // a rule or an outline reaches over its place by half of it
    const QRectF paper{edge, edge, size.width() - 2 * edge, size.height() - footHeight - 2 * edge};
    if (choice.overview) pages.push_back(overviewPage(card, paper));
    const auto perPage = static_cast<std::size_t>(std::clamp(choice.racesPerPage, 1, 2));
    const qreal height =
        (paper.height() - raceGap * static_cast<qreal>(perPage - 1)) / static_cast<qreal>(perPage);
    for (std::size_t at = 0; at < card.races.size(); at += perPage) {
        Sheet sheet;
        for (std::size_t part = 0; part < perPage && at + part < card.races.size(); ++part) {
            const qreal top = paper.top() + static_cast<qreal>(part) * (height + raceGap);
            RaceBlock{sheet, card, card.races[at + part], {paper.left(), top, paper.width(), height}}.put();
        }
        pages.push_back(sheet.take());
    }
    for (std::size_t at = 0; at < pages.size(); ++at)
        putFoot(pages[at], size, card.title, at + 1, pages.size());
    return pages;
}

} // namespace quillon
