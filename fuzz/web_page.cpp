// Webpage.ini, whose last line names the page that "TrackMaster" opens.
#include "app/commands.h"
#include "screen/ports.h"
#include "support/fuzz_target.h"

using namespace quillon;

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static bool begun = false;
    if (!begun) fuzz::beginInput();
    begun = true;
    fuzz::put("Webpage.ini", fuzz::textOf(data, size));
    int pages = 0;
    ports.browse = [&](const Text& address) {
        ++pages;
        fuzz::ensure(!address.empty() && trimmed(address) == address, "an address without blanks round it");
        fuzz::ensure(!contains(address, "\n"), "an address of one line");
    };
    runCommand(command(CommandId::Reset), {});
    runCommand(command(CommandId::EXE), {});
    ports.browse = [](const Text&) {};
    fuzz::ensure(pages <= 1, "one page at most");
    return 0;
}
