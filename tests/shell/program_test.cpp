#include "support/pupil.h"

namespace {

const Names kHideTaskbar{"find <Shell_traywnd> <>", "place 77 after 0 at 0,0,0,0 flags 80"};
const Names kShowTaskbar{"find <Shell_traywnd> <>", "place 77 after 0 at 0,0,0,0 flags 40"};

Names Change(const std::string& size) {
    return {"mode 0", "mode 1", "mode 2", "mode 3", "change " + size + "x24 fields 180000 flags 0"};
}

Names operator+(Names first, const Names& second) {
    first.insert(first.end(), second.begin(), second.end());
    return first;
}

TEST(Program, StartsUpInOrder) {
    Pupil pupil;
    EXPECT_EQ(pupil.platform.calls, (Names{"load 11", "load 12", "load 13", "load 14", "load 15", "load 16"} +
                                     kHideTaskbar + Change("640x480")));
    EXPECT_TRUE(pupil.Sees(pupil.screens.depart.form));
    EXPECT_EQ(pupil.screens.depart.dates.caption(), "Samedi 21 novembre 2026");
    EXPECT_EQ(pupil.screens.depart.heure.caption(), "10:20:30");
    EXPECT_EQ(pupil.screens.leçon.l9.caption(), "342\rX  57");
}

TEST(Program, GivesEachScreenItsPicture) {
    Pupil pupil;
    Screens& screens = pupil.screens;
    const std::pair<const Form*, const char*> pictures[] = {
        {&screens.apprendre.form, "11"}, {&screens.bilan.form, "12"},  {&screens.exercices.form, "13"},
        {&screens.leçon.form, "14"},     {&screens.depart.form, "15"}, {&screens.pythagore.form, "16"}};
    for (const auto& [form, name] : pictures) {
        EXPECT_EQ(static_cast<const HeadlessPicture&>(*form->picture()).source, name);
    }
}

TEST(Program, QuitsInOrderWithTheSizeOfTheStart) {
    Pupil pupil;
    pupil.platform.calls.clear();
    pupil.platform.screen_width = 640;
    pupil.platform.screen_height = 480;
    pupil.Click(pupil.screens.depart.fin);
    EXPECT_EQ(pupil.platform.calls,
              (Names{"stop", "start 5", "write 18"} + Change("1024x768") + kShowTaskbar + Names{"end"}));
}

}  // namespace
