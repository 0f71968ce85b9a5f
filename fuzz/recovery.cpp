// A packed card with its changes, past its checksum, as a recovery file has it, put back and worked on. An
// input is a small card with some of its bytes changed, or bytes as they come.
#include "app/commands.h"
#include "day/packing.h"
#include "support/byte_reader.h"
#include "support/fuzz_target.h"
#include "support/small_card.h"

#include <array>
#include <utility>

using namespace quillon;

namespace {

// A small card with two changes, one of them taken back, packed; made once for each card.
const Text& packedCard(std::size_t which) {
    static std::array<Text, fuzz::smallCards> packed;
    if (packed[which].empty()) {
        fuzz::beginInput();
        fuzz::putSmallCard(which);
        fuzz::press("Start");
        fuzz::press("RaceButton", {{1}, ""});
        fuzz::press("Box", {{4}, "2"});
        fuzz::press("Command4", {{1}, ""});
        fuzz::press("Undo");
        Packer out;
        pack(out, changes);
        packed[which] = out.bytes();
    }
    return packed[which];
}

// Each change is a place in three bytes, what is done there, and a byte.
Text changedCard(fuzz::ByteReader& input) {
    Text bytes = packedCard(input.choice(fuzz::smallCards));
    while (!input.atEnd() && !bytes.empty()) {
        const std::size_t place = (input.byte() << 16U | input.byte() << 8U | input.byte()) % bytes.size();
        switch (input.choice(4)) {
        case 0: bytes[place] = static_cast<char>(input.byte()); break;
        case 1: bytes.insert(place, 1, static_cast<char>(input.byte())); break;
        case 2: bytes.erase(place, input.byte()); break;
        default: bytes.resize(place); break;
        }
    }
    return bytes;
}

void workOn(ChangeList list) {
    changes = std::move(list);
    changes.putStateBack();
    fuzz::lookAtScreen();
    fuzz::press("Undo");
    fuzz::press("Redo");
    fuzz::press("Redo");
    fuzz::storeText();
    fuzz::press("Next");
    fuzz::press("RaceButton", {{2}, ""});
    fuzz::press("EntryButton", {{1}, ""});
    fuzz::press("Command4", {{1}, ""});
    fuzz::press("DriverColumn", {{1}, ""});
    fuzz::press("AutoRecord");
    fuzz::press("SelectionResults");
    fuzz::press("Save");
    fuzz::lookAtScreen();
    fuzz::press("CloseRC");
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    fuzz::ByteReader input{fuzz::textOf(data, size)};
    const bool isCard = input.choice(4) != 0;
    const Text bytes = isCard ? changedCard(input) : Text{input.text(size)};
    fuzz::beginInput();
    (void)opened(fuzz::textOf(data, size));
    Unpacker in{bytes};
    ChangeList list;
    if (!unpack(in, list)) return 0;
    workOn(std::move(list));
    return 0;
}
