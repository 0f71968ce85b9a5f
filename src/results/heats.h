// Heat races: eliminations whose finishers go on to a final, which is kept in a free race slot of the card.
//
// In its slot, above the card's own races, a heat's final has its entries at the post position entered for
// them: name, driver and UDR in the store's own places, the post in `card.heatPost` and the rating, improved
// by the finish in the heat, in `card.heatRating`.
#pragma once

namespace quillon {

/// Switches the mark of "Heat Winner " and with it the twelve heat choice buttons.
void HeatWinner();

/// Heat choice button of row i of the race view on show: asks for the final's race number, the finish and the
/// new post, and enters the horse there. A cancel, or an answer that can't be used, ends it.
void HeatChoice(int row);

/// Asks for a heat's number and opens its log in the text viewer.
void ViewHeat();

/// Fills the race view of a heat from its slot. Fails where there is no such view.
void fillHeatView(int race);

/// The heat's ranking in the four selection boxes, where none of the slot's own selections has a text.
void showHeatSelections(int race);

} // namespace quillon
