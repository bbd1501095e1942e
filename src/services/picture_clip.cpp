#include "services/picture_clip.h"

#include "services/screen_pictures.h"
#include "support/run_time_error.h"

namespace onze {

PicturePtr PictureClip::Clip() const {
    const bool inside = ClipX >= 0 && ClipY >= 0 && ClipWidth > 0 && ClipHeight > 0 &&
                        ClipX + ClipWidth <= picture->WidthInPixels() &&
                        ClipY + ClipHeight <= picture->HeightInPixels();
    PicturePtr clip = inside ? pictures.Clip(*picture, ClipX, ClipY, ClipWidth, ClipHeight) : nullptr;
    if (!clip) throw RunTimeError("Découpe hors de l'image.");
    const auto cut_larger = [from = picture, &host = pictures, x = ClipX, y = ClipY, width = ClipWidth,
                             height = ClipHeight]() -> PicturePtr {
        constexpr int k = kLargerTimes;
        const PicturePtr larger = from->ReadLarger();
        return larger ? host.Clip(*larger, k * x, k * y, k * width, k * height) : nullptr;
    };
    clip->SetLarger(cut_larger);
    return clip;
}

}  // namespace onze
