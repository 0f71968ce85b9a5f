#include "desktop/card_printing.h"

#include "desktop/shown_text.h"

#include <QActionGroup>
#include <QFontMetricsF>
#include <QPageSize>
#include <QPainter>
#include <QSettings>

#include <algorithm>
#include <utility>

namespace quillon {
namespace {

constexpr const char* racesSetting = "cardPrint/racesPerPage";
constexpr const char* overviewSetting = "cardPrint/overview";
constexpr const char* paperSetting = "cardPrint/paper";

QRectF scaled(const QRectF& place, qreal scale) {
    return {place.x() * scale, place.y() * scale, place.width() * scale, place.height() * scale};
}

void paintText(QPainter& painter, const PageItem& item, qreal scale) {
    painter.setFont(paperFont(item.points * scale, item.bold));
    painter.setPen(item.ink);
    const int flags = static_cast<int>(item.align | Qt::AlignVCenter) | Qt::TextSingleLine | Qt::TextDontClip;
    painter.drawText(scaled(item.place, scale), flags, item.text);
}

void paintLines(QPainter& painter, const PageItem& item, qreal scale) {
    painter.setPen(item.thickness > 0
                       ? QPen{item.ink, item.thickness * scale, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin}
                       : QPen{Qt::NoPen});
    painter.setBrush(item.fill.isValid() ? QBrush{item.fill} : QBrush{Qt::NoBrush});
    const QRectF place = scaled(item.place, scale);
    if (item.kind == PageItem::Kind::box)
        painter.drawRect(place);
    else
        painter.drawLine(place.topLeft(), place.topRight());
}

CardPageChoice keptChoice() {
    const QSettings settings;
    return {settings.value(racesSetting, 1).toInt(), settings.value(overviewSetting, true).toBool()};
}

} // namespace

void paintPage(QPainter& painter, const Page& page, qreal scale) {
    for (const PageItem& item : page) {
        if (item.kind == PageItem::Kind::text)
            paintText(painter, item, scale);
        else
            paintLines(painter, item, scale);
    }
}

bool printCard(QPrinter& printer, const PaperCard& card, const CardPageChoice& choice) {
    QPainter painter;
    if (!painter.begin(&printer)) return false;
    constexpr qreal pointsPerInch = 72;
    const auto pages = cardPages(card, printer.pageRect(QPrinter::Point).size(), choice);
    const int count = static_cast<int>(pages.size());
    const int first = printer.fromPage() > 0 ? printer.fromPage() : 1; // 0: the user named no pages
    const int last = std::min(printer.toPage() > 0 ? printer.toPage() : count, count);
    for (int number = first; number <= last; ++number) {
        if (number > first && !printer.newPage()) return false;
        paintPage(painter, pages[static_cast<std::size_t>(number - 1)], printer.resolution() / pointsPerInch);
    }
    return painter.end();
}

CardPrintPreview::CardPrintPreview(const PaperCard& card, QWidget* parent)
    : CardPrintPreview{std::make_shared<CardPageChoice>(keptChoice()), card, parent} {}

CardPrintPreview::CardPrintPreview(std::shared_ptr<CardPageChoice> choice, const PaperCard& card,
                                   QWidget* parent)
    : PrintPreview{{card.title,
                    [choice, card](QPrinter& printer) { return printCard(printer, card, *choice); }},
                   parent},
      choice_{std::move(choice)} {
    addChoices();
}

void CardPrintPreview::addChoices() {
    const auto add = [this](QActionGroup* group, const char* name, const QString& text, const QString& keys,
                            const QString& tip, bool isChecked, auto&& slot) {
        QAction* action = addChoice(name, text, QKeySequence{keys}, tip);
        action->setCheckable(true);
        action->setChecked(isChecked);
        if (group) group->addAction(action);
        connect(action, &QAction::triggered, this, slot);
    };
    auto* races = new QActionGroup{this};
    add(races, "OneRace", tr("&One Race a Page"), "Ctrl+1", tr("A page for each race, with room to write"),
        choice_->racesPerPage != 2, [this] { chooseRaces(1); });
    add(races, "TwoRaces", tr("&Two Races a Page"), "Ctrl+2", tr("Half of the paper"),
        choice_->racesPerPage == 2, [this] { chooseRaces(2); });
    partChoices();
    add(nullptr, "OverviewPage", tr("O&verview"), "Ctrl+3", tr("Begin with a page of all races"),
        choice_->overview, [this](bool wanted) { chooseOverview(wanted); });
    const int kept = QSettings{}.value(paperSetting, static_cast<int>(paper())).toInt();
    setPaper(kept == QPageSize::Letter ? QPageSize::Letter : QPageSize::A4);
    partChoices();
    auto* papers = new QActionGroup{this};
    add(papers, "PaperA4", tr("&A4"), "Ctrl+4", tr("Paper of 210 by 297 mm"), paper() == QPageSize::A4,
        [this] { choosePaper(QPageSize::A4); });
    add(papers, "PaperLetter", tr("L&etter"), "Ctrl+5", tr("Paper of 8.5 by 11 inches"),
        paper() == QPageSize::Letter, [this] { choosePaper(QPageSize::Letter); });
}

void CardPrintPreview::chooseRaces(int racesPerPage) {
    choice_->racesPerPage = racesPerPage;
    QSettings{}.setValue(racesSetting, racesPerPage);
    drawAgain();
}

void CardPrintPreview::chooseOverview(bool wanted) {
    choice_->overview = wanted;
    QSettings{}.setValue(overviewSetting, wanted);
    drawAgain();
}

void CardPrintPreview::choosePaper(QPageSize::PageSizeId paper) {
    QSettings{}.setValue(paperSetting, static_cast<int>(paper));
    setPaper(paper);
}

CardPrintItem::CardPrintItem(QMenu& file, QAction* before, QWidget& window)
    : QObject{&window}, window_{window}, action_{new QAction{tr("Print Car&d..."), &file}} {
    action_->setObjectName("PrintCard");
    action_->setShortcut(QKeySequence{"Ctrl+Shift+P"});
    action_->setStatusTip(
        tr("Print the card with its ratings and selections, a race or two a page, or save it as PDF"));
    action_->setToolTip(action_->statusTip());
    connect(action_, &QAction::triggered, this, &CardPrintItem::open);
    file.insertAction(before, action_);
}

void CardPrintItem::refresh() { action_->setEnabled(cardIsOpen()); }

void CardPrintItem::open() {
    if (!cardIsOpen()) return;
    auto* preview = new CardPrintPreview{paperCard(), &window_};
    preview->setAttribute(Qt::WA_DeleteOnClose);
    preview->show();
}

} // namespace quillon
