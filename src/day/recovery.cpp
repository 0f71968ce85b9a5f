#include "day/recovery.h"

#include "core/failure.h"
#include "core/files.h"
#include "core/packing.h"

#include <algorithm>
#include <memory>
#include <tuple>
#include <utility>

namespace quillon {

void pack(Packer& out, const RecoveryHeading& heading) {
    const auto& [cardName, changes, time] = heading;
    pack(out, cardName);
    pack(out, changes);
    pack(out, time);
}

bool unpack(Unpacker& in, RecoveryHeading& heading) {
    auto& [cardName, changes, time] = heading;
    return unpack(in, cardName) && unpack(in, changes) && unpack(in, time);
}

namespace {

constexpr TextView stateEnding = ".recovery";
constexpr TextView markEnding = ".running";

FilePlace stateOf(const Text& name) { return {Folder::recovery, name + Text{stateEnding}}; }

/// Nothing where its program lives.
std::unique_ptr<ClaimedFile> markOf(const Text& name) {
    return ClaimedFile::claim({Folder::recovery, name + Text{markEnding}});
}

struct KeptFile {
    Text name; ///< without its ending
    std::unique_ptr<ClaimedFile> mark;
};

struct FoundFile {
    KeptFile file;
    LeftBehind content;
};

// Of this program. What it keeps stays on the disk when it ends; the marks go.
std::optional<KeptFile> kept;
std::optional<FoundFile> found;

/// "MVR_20260314" of the card's file, as a name that any disk takes.
Text baseNameOf(TextView cardName) {
    constexpr std::size_t longest = 60;
    Text name{cardName.substr(0, std::min(cardName.rfind('.'), longest))};
    for (char& c : name) {
        const bool plain = (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
        if (!plain) c = '_';
    }
    return name.empty() ? "card" : name;
}

KeptFile newFile(TextView cardName) {
    constexpr int most = 999;
    for (int number = 1; number <= most; ++number) {
        Text name = baseNameOf(cardName) + "-" + std::to_string(number);
        auto mark = markOf(name);
        if (mark && !fileExists(stateOf(name))) return {std::move(name), std::move(mark)};
    }
    fail("there is no name left for a recovery file");
}

bool isOf(const KeptFile& file, TextView cardName) {
    return file.name.starts_with(baseNameOf(cardName) + "-");
}

std::optional<LeftBehind> readState(const Text& name) {
    const auto content = fileContent(stateOf(name));
    const auto bytes = content ? opened(*content) : std::nullopt;
    if (!bytes) return std::nullopt;
    Unpacker in{*bytes};
    LeftBehind state;
    if (!unpack(in, state.heading) || !unpack(in, state.state) || !in.atEnd()) return std::nullopt;
    return state;
}

std::optional<FoundFile> fileLeftBehind(Text name) {
    std::unique_ptr<ClaimedFile> mark;
    if (!attempt([&] { mark = markOf(name); }) || !mark) return std::nullopt;
    auto state = readState(name);
    if (!state) return std::nullopt;
    return FoundFile{{std::move(name), std::move(mark)}, std::move(*state)};
}

bool isNewer(const FoundFile& left, const FoundFile& right) {
    const auto rank = [](const FoundFile& file) {
        return std::tie(file.content.heading.time, file.content.heading.changes, file.file.name);
    };
    return rank(left) > rank(right);
}

} // namespace

void keepForRecovery(TextView state, const RecoveryHeading& heading) {
    const Step step{"keepForRecovery"};
    Packer out;
    pack(out, heading);
    out.putText(state);
    if (kept && isOf(*kept, heading.cardName)) {
        writeFile(stateOf(kept->name), sealed(out.bytes()));
        return;
    }
    // The file of the card that was open before goes when the new one is there.
    KeptFile file = newFile(heading.cardName);
    writeFile(stateOf(file.name), sealed(out.bytes()));
    const std::optional<KeptFile> before = std::exchange(kept, std::move(file));
    if (before) attempt([&] { removeFile(stateOf(before->name)); });
}

void stopKeeping() {
    const Step step{"stopKeeping"};
    if (!kept) return;
    removeFile(stateOf(kept->name));
    kept.reset();
}

const LeftBehind* leftBehind() {
    const Step step{"leftBehind"};
    if (found) return &found->content;
    for (Text name : filesIn(Folder::recovery, stateEnding)) {
        name.resize(name.size() - stateEnding.size());
        auto file = fileLeftBehind(std::move(name));
        if (file && (!found || isNewer(*file, *found))) found = std::move(file);
    }
    return found ? &found->content : nullptr;
}

void forgetLeftBehind() {
    const Step step{"forgetLeftBehind"};
    if (!found) return;
    removeFile(stateOf(found->file.name));
    found.reset();
}

void takeOverLeftBehind() {
    if (!found) return;
    attempt(stopKeeping);
    kept = std::move(found->file);
    found.reset();
}

} // namespace quillon
