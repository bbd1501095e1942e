#include "shell/divers.h"

#include "forms/platform.h"
#include "forms/stage.h"
#include "shell/anim.h"

PicturePtr PictureClip::Clip() const {
    return platform.ClipPicture(picture, ClipX, ClipY, ClipWidth, ClipHeight);
}

Divers::Divers(Stage& stage) : form(stage), anim{stage.platform(), stage.platform().LoadPicture(kAnim)} {}
