#pragma once

#include <cstddef>
#include <filesystem>
#include <span>

// Replaces the content of a file, or creates it, so that a crash or a power cut at any moment leaves the old
// bytes or the new ones, whole. The file keeps its permissions; of a symbolic link the target is replaced.
// Where nothing can be made beside the file (its folder is read-only, the disk is full) its bytes are
// overwritten in place, without that promise; a longer file keeps its end. Throws RunTimeError when that
// cannot be done either.
void ReplaceContent(const std::filesystem::path& file, std::span<const std::byte> bytes);
