#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace samples {

// The whole file as bytes; nothing when it can't be read.
std::optional<std::string> readFile(const std::filesystem::path& path);

// Writes the bytes as the whole file and makes the folders above it. False when that fails.
[[nodiscard]] bool writeFile(const std::filesystem::path& path, std::string_view bytes);

} // namespace samples
