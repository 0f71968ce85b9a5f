#include "card/card_files.h"

#include "card/race_card.h"
#include "core/failure.h"

namespace quillon {

FilePlace cardFile(Folder folder, TextView extension) {
    const int point = placeOf(".", card.cardFileName);
    if (point == 0) fail("no card is open");
    Text name{leftOf(card.cardFileName, point)};
    name += extension;
    return {folder, std::move(name)};
}

} // namespace quillon
