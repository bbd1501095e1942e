#include <gtest/gtest.h>

#include "services/display_mode.h"
#include "services/picture_clip.h"
#include "services/sounds.h"
#include "support/headless_host.h"
#include "support/run_time_error.h"

namespace onze {

namespace {

using Names = std::vector<std::string>;

TEST(Sounds, EachCycleRunsRoundOnItsOwn) {
    HeadlessHost host;
    Sounds sounds(host);
    for (int i = 0; i < 5; ++i) sounds.PlayVictorySound();
    for (int i = 0; i < 6; ++i) sounds.PlayDefeatSound();
    sounds.PlayVictorySound();
    EXPECT_EQ(host.calls.at(0), "stop");
    EXPECT_EQ(host.calls.at(1), "start 1.vic");
    EXPECT_EQ(host.sounds, (Names{"1.vic", "2.vic", "3.vic", "4.vic", "1.vic", "1.def", "2.def", "3.def",
                                  "4.def", "1.def", "2.def", "2.vic"}));
}

TEST(Sounds, ClicksAreUsedUpBehindAClosedGate) {
    HeadlessHost host;
    Sounds sounds(host);
    for (int i = 0; i < 3; ++i) sounds.PlayClickSound();  // closed at start-up
    EXPECT_TRUE(host.calls.empty());
    sounds.ClickSoundEnabled = 1;
    for (int i = 0; i < 8; ++i) sounds.PlayClickSound();
    EXPECT_EQ(host.sounds, (Names{"4", "5", "6", "7", "8", "9", "10", "1"}));
}

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
