#pragma once

#include "services/pictures.h"

namespace onze {

// The rectangle that ClipX to ClipHeight choose, in pixels, out of one stored picture.
struct PictureClip {
    Pictures& pictures;
    PicturePtr picture;
    int ClipX = 0;
    int ClipY = 0;
    int ClipWidth = 0;
    int ClipHeight = 0;

    // Throws RunTimeError when the rectangle does not lie inside the picture whole.
    PicturePtr Clip() const;
};

}  // namespace onze
