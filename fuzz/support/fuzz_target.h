// What every target shares. A target is a function over the bytes of one input; libFuzzer calls it with
// inputs that it makes up, the replay program with files. Any exception that leaves it, and any report of a
// sanitizer, is a find.
#pragma once

#include "app/commands.h"
#include "core/text.h"
#include "screen/screen.h"

#include <cstddef>
#include <cstdint>
#include <filesystem>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace quillon::fuzz {

/// The input as the text that a reader gets.
inline TextView textOf(const std::uint8_t* data, std::size_t size) {
    return {reinterpret_cast<const char*>(data), size};
}

/// Ends the process loudly where something that must always hold does not.
void ensure(bool holds, const char* what);

/// Begins an input as the program begins: nothing in the store, nothing on the screen, ports that do nothing,
/// and an empty working folder in memory, which is the same one for all inputs of a process.
void beginInput();

/// Writes a file by its path in the working folder.
void put(const std::filesystem::path& path, TextView content);

/// What a user does: runs the command of this name where it can be pressed.
void press(const char* name, const Arguments& arguments = {});

/// Reads every cell of a view. Rows of long tables are made when they are looked at, so that a reader may
/// well break here.
void lookAt(const Grid& view);

/// Reads everything that a user could look at.
void lookAtScreen();

/// The whole store as the console shows it: the same after the same steps, whatever was there before them.
Text storeText();

inline const std::filesystem::path sourceFolder = "A Quillon PRO/TrackMaster ExE Files";

} // namespace quillon::fuzz
