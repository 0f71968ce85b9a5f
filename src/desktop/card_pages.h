// Where everything of a card stands on its pages, in points of paper. Nothing is drawn here.
#pragma once

#include "desktop/page_sheet.h"
#include "desktop/paper_card.h"

#include <QSizeF>

#include <vector>

namespace quillon {

struct CardPageChoice {
    int racesPerPage = 1; ///< or 2
    bool overview = true; ///< a page of all races before them
};

/// The pages of a card on paper whose printable part has this size.
std::vector<Page> cardPages(const PaperCard& card, const QSizeF& size, const CardPageChoice& choice);

} // namespace quillon
