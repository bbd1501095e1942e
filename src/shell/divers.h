#pragma once

#include "forms/form.h"

// The rectangle that ClipX to ClipHeight choose, in pixels, out of one stored picture.
struct PictureClip {
    Platform& platform;
    PicturePtr picture;
    int ClipX = 0;
    int ClipY = 0;
    int ClipWidth = 0;
    int ClipHeight = 0;

    // Throws RunTimeError when the rectangle does not lie inside the picture.
    PicturePtr Clip() const;
};

// A screen that is never shown: it holds the strip of digit pictures.
class Divers {
  public:
    explicit Divers(Stage& stage);

    Form form;
    PictureClip anim;
};
