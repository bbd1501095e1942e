#pragma once

#include <cstddef>
#include <optional>
#include <span>

struct PixelSize {
    int width;
    int height;
};

// The size that a BMP, GIF, JPEG or PNG file tells in its header; nothing for bytes that are none of these or
// that lack the end of the file.
std::optional<PixelSize> ReadPictureHeader(std::span<const std::byte> bytes);
