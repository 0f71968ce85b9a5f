#include "day/keeping.h"

#include "card/race_card.h"
#include "core/dates.h"
#include "core/failure.h"
#include "day/changes.h"
#include "day/packing.h"
#include "day/recovery.h"
#include "screen/ports.h"

#include <algorithm>
#include <utility>

namespace quillon {
namespace {

using Clock = std::chrono::steady_clock;

std::uint64_t versionKept = 0;                // of the list of changes, also where nothing was there to keep
std::optional<Clock::time_point> unkeptSince; // when the first change came that is not kept

void setKept() {
    versionKept = changes.version();
    unkeptSince.reset();
}

bool isUnkept() { return changes.version() != versionKept && changes.unsaved() > 0; }

} // namespace

void noticeChanges() {
    if (changes.version() == versionKept) return;
    if (!isUnkept()) {
        setKept();
        attempt(stopKeeping);
    } else if (!unkeptSince) {
        unkeptSince = Clock::now();
    }
}

std::optional<std::chrono::milliseconds> keepingDueIn() {
    using std::chrono::milliseconds;
    if (!unkeptSince) return std::nullopt;
    const auto left = std::chrono::ceil<milliseconds>(*unkeptSince + keepWithin - Clock::now());
    return std::max(left, milliseconds::zero());
}

void KeepCard() {
    const Step step{"KeepCard"};
    if (!isUnkept()) return;
    setKept();
    changes.takeStateIn();
    Packer state;
    pack(state, changes);
    keepForRecovery(state.bytes(), {.cardName = card.cardFileName,
                                    .changes = static_cast<int>(changes.standing().size()),
                                    .time = localTime()});
}

void KeepCardWhenDue() {
    if (const auto due = keepingDueIn(); due && *due == due->zero()) KeepCard();
}

bool canRecover() { return leftBehind() != nullptr; }

void Recover() {
    const Step step{"Recover"};
    const LeftBehind* const left = leftBehind();
    if (!left) return;
    Unpacker in{left->state};
    ChangeList list;
    if (!unpack(in, list) || !in.atEnd())
        return ports.message("Another version of Quillon has kept this card, and it alone can restore it.",
                             "");
    changes = std::move(list);
    changes.putStateBack();
    takeOverLeftBehind();
    setKept();
}

void Forget() { forgetLeftBehind(); }

} // namespace quillon
