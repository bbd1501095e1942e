#pragma once

#include <cstddef>
#include <span>
#include <string_view>

#include "forms/drawing.h"

namespace onze {

// The host's pictures.
class Pictures {
  public:
    virtual ~Pictures() = default;

    // The picture in a file of any format that the host's loader knows, recognised by content; null when it
    // cannot be read, or not the whole of it. The name is for a host that has decoded all of them before the
    // start.
    virtual PicturePtr Decode(std::string_view name, std::span<const std::byte> file) = 0;
    // A part of a picture, which lies inside it, in its pixels; null when it cannot be made.
    virtual PicturePtr Clip(const Picture& picture, int x, int y, int width, int height) = 0;
};

}  // namespace onze
