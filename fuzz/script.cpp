// A console script, as it is typed, over a small card.
#include "console/console.h"
#include "core/code_page.h"
#include "support/fuzz_target.h"
#include "support/small_card.h"

#include <sstream>

using namespace quillon;

namespace {

// Every character of it comes through the code page and back.
void checkTranscript(const std::string& transcript) {
    fuzz::ensure(transcript.empty() || transcript.back() == '\n', "every line is ended");
    fuzz::ensure(!contains(transcript, "\r"), "a line break within a text doesn't break its line");
    fuzz::ensure(toUtf8(fromUtf8(transcript)) == transcript, "the transcript is UTF-8");
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    fuzz::beginInput();
    fuzz::putSmallCard(0);
    std::istringstream in{std::string{fuzz::textOf(data, size)}};
    std::ostringstream out;
    Console console{out};
    console.run(in);
    checkTranscript(out.str());
    return 0;
}
