// The card on paper: its pages drawn, their preview, and its item in the File menu.
#pragma once

#include "desktop/card_pages.h"
#include "desktop/print_preview.h"

#include <QAction>
#include <QMenu>
#include <QPainter>
#include <QPrinter>

#include <memory>

namespace quillon {

/// Draws a page; `scale` is the device's pixels in a point.
void paintPage(QPainter& painter, const Page& page, qreal scale);

/// Prints the card on the printer's paper. False where the printer can't begin, or its file not be written.
bool printCard(QPrinter& printer, const PaperCard& card, const CardPageChoice& choice);

/// The preview, with what the user may choose: races a page, the overview, the paper. Kept in the settings.
class CardPrintPreview : public PrintPreview {
    Q_OBJECT

public:
    explicit CardPrintPreview(const PaperCard& card, QWidget* parent = nullptr);

private:
    CardPrintPreview(std::shared_ptr<CardPageChoice> choice, const PaperCard& card, QWidget* parent);
    void addChoices();
    void chooseRaces(int racesPerPage);
    void chooseOverview(bool wanted);
    void choosePaper(QPageSize::PageSizeId paper);

    std::shared_ptr<CardPageChoice> choice_; ///< what the drawing reads
};

/// Its item, which opens the preview where a card is open.
class CardPrintItem : public QObject {
    Q_OBJECT

public:
    CardPrintItem(QMenu& file, QAction* before, QWidget& window);

    void refresh(); ///< enabled as a card is open

private:
    void open();

    QWidget& window_;
    QAction* action_;
};

} // namespace quillon
