#include <gtest/gtest.h>

#include "services/display_mode.h"
#include "services/picture_clip.h"
#include "support/headless_host.h"
#include "support/run_time_error.h"

namespace onze {

namespace {

using Names = std::vector<std::string>;

TEST(DisplayMode, RoundsHalvesToEven) {
    HeadlessHost host;
    host.modes = 0;
    DisplayMode display(host);
    display.SetDisplayResolution(1024.5F, 767.5F);
    display.SetDisplayResolution(1023.6F, 768.4F);
    EXPECT_EQ(host.calls, (Names{"mode 0", "change 1024x768x0 fields 180000 flags 0", "mode 0",
                                 "change 1024x768x0 fields 180000 flags 0"}));
}

TEST(PictureClip, LiesInsideItsPictureWhole) {
    HeadlessHost host;
    PictureClip clip{host, std::make_shared<NullPicture>("anim", 0, 0, 20, 10), 0, 0, 20, 10};
    EXPECT_EQ(clip.Clip()->WidthInPixels(), 20);
    for (int* const number : {&clip.ClipX, &clip.ClipY, &clip.ClipWidth, &clip.ClipHeight}) {
        ++*number;
        EXPECT_THROW(clip.Clip(), RunTimeError);
        *number = number == &clip.ClipWidth || number == &clip.ClipHeight ? 0 : -1;
        EXPECT_THROW(clip.Clip(), RunTimeError);
        *number = number == &clip.ClipWidth ? 20 : number == &clip.ClipHeight ? 10 : 0;
    }
}

}  // namespace

}  // namespace onze
