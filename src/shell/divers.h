#pragma once

#include "forms/form.h"
#include "services/picture_clip.h"

namespace onze {

// A screen that is never shown: it holds the strip of digit pictures.
struct Divers {
    Form form;
    PictureClip anim;
};

}  // namespace onze
