#include "card/card_files.h"

#include "card/race_card.h"
#include "core/failure.h"

namespace quillon {

TextView cardNameOf(TextView fileName) { return fileName.substr(0, fileName.find('.')); }

TextView cardTrackOf(TextView fileName) { return leftOf(fileName, placeOf("_", fileName) - 1); }

TextView cardDateOf(TextView fileName) {
    constexpr int dateLength = 8;
    const int gap = placeOf("_", fileName);
    return gap == 0 ? TextView{} : midOf(fileName, gap + 1, dateLength);
}

FilePlace cardFile(Folder folder, TextView extension) {
    const int point = placeOf(".", card.cardFileName);
    if (point == 0) fail("no card is open");
    Text name{leftOf(card.cardFileName, point)};
    name += extension;
    return {folder, std::move(name)};
}

} // namespace quillon
