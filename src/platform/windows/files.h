#pragma once

#include <cstddef>
#include <filesystem>
#include <optional>
#include <span>
#include <vector>

// The bytes of a file; nothing when it cannot be read.
std::optional<std::vector<std::byte>> ReadWholeFile(const std::filesystem::path& file);

// Puts new bytes in the place of a file's old ones, or creates the file. The new bytes are on the disk before
// they take their place in one step. Tells whether that was done; else the old file is as it was.
bool ReplaceWholeFile(const std::filesystem::path& file, std::span<const std::byte> bytes);
