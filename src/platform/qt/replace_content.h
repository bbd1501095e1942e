#pragma once

#include <cstddef>
#include <filesystem>
#include <span>

// Replaces the content of a file, or creates it, so that a crash or a power cut at any moment leaves the old
// bytes or the new ones, whole. The file keeps its permissions; of a symbolic link the target is replaced.
// Throws RunTimeError, the old content being kept, when that cannot be done.
void ReplaceContent(const std::filesystem::path& file, std::span<const std::byte> bytes);
