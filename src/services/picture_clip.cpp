#include "services/picture_clip.h"

#include "support/run_time_error.h"

namespace onze {

PicturePtr PictureClip::Clip() const {
    const bool inside = ClipX >= 0 && ClipY >= 0 && ClipWidth > 0 && ClipHeight > 0 &&
                        ClipX + ClipWidth <= picture->WidthInPixels() &&
                        ClipY + ClipHeight <= picture->HeightInPixels();
    PicturePtr clip = inside ? pictures.Clip(*picture, ClipX, ClipY, ClipWidth, ClipHeight) : nullptr;
    if (!clip) throw RunTimeError("Découpe hors de l'image.");
    return clip;
}

}  // namespace onze
