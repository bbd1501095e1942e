#pragma once

#include <cstddef>
#include <filesystem>
#include <optional>
#include <span>
#include <vector>

// The bytes of a file; nothing when it cannot be read.
std::optional<std::vector<std::byte>> ReadWholeFile(const std::filesystem::path& file);

// Puts new bytes in the place of a file's old ones, or creates the file. The new bytes are on the disk before
// they take their place in one step. Where nothing can be made beside the file (its folder is read-only, the
// disk is full) its bytes are overwritten in place; a longer file keeps its end. Tells whether that was done.
bool ReplaceWholeFile(const std::filesystem::path& file, std::span<const std::byte> bytes);
