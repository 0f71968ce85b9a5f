// CrossOver.ini at the start of the program.
#include "app/start_up.h"
#include "support/fuzz_target.h"

using namespace quillon;

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static bool begun = false;
    if (!begun) fuzz::beginInput();
    begun = true;
    fuzz::put("CrossOver.ini", fuzz::textOf(data, size));
    StartUp();
    fuzz::ensure(screen.header.track.caption.size() <= 3, "a track of three letters");
    fuzz::ensure(screen.header.date.caption.size() <= 4, "a day of four figures");
    return 0;
}
