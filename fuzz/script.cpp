// A console script, as it is typed, over a small card.
#include "console/console.h"
#include "support/fuzz_target.h"
#include "support/small_card.h"

#include <sstream>

using namespace quillon;

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    fuzz::beginInput();
    fuzz::putSmallCard(0);
    std::istringstream in{std::string{fuzz::textOf(data, size)}};
    std::ostringstream out;
    Console console{out};
    console.run(in);
    return 0;
}
