// The bytes of an archive that a user drops on the window, through the reading and the check of its tables.
#include "import/checked_card.h"
#include "import/zip_reading.h"
#include "support/fuzz_target.h"

using namespace quillon;

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    fuzz::beginInput();
    constexpr ZipLimits limits{.members = 100, .bytes = 1U << 20, .ratio = 250, .freeOfRatio = 1U << 18};
    Gathered gathered;
    gatherFromZip(fuzz::textOf(data, size), "card.zip", gathered, limits);
    std::size_t bytes = 0;
    for (const VendorTable& table : gathered.tables) {
        bytes += table.content.size();
        fuzz::ensure(vendorTableAt(table.path) == table.name, "a table is called as its path is");
        fuzz::ensure(gathered.find(table.name) == &table, "no table is taken twice");
    }
    fuzz::ensure(bytes <= limits.bytes, "no more is unpacked than the limits allow");
    const CheckedCard card = checkedCard(gathered.tables);
    fuzz::ensure(card.isRefused() || (card.races > 0 && !card.track.empty()), "a card has races and a track");
    return 0;
}
