#pragma once

#include <cstddef>
#include <span>

// Whether a PNG, JPEG, GIF or BMP file ends before its picture does: loaders take such a file for the half of
// the picture that it still holds. Of other formats nothing is known.
bool IsCutShort(std::span<const std::byte> picture);
