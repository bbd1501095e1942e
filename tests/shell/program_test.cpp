#include "support/pupil.h"
#include "support/run_time_error.h"

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

TEST(Program, MissingFileStopsBeforeAnythingIsTouched) {
    for (const char* missing : {"18", "11", "16"}) {
        HeadlessPlatform platform;
        ScriptedRandom random;
        std::filesystem::remove(platform.folder / "datas" / missing);
        Program program(platform, random);
        try {
            program.Load();
            ADD_FAILURE() << "started without " << missing;
        } catch (const RunTimeError& error) {
            const std::string text = error.what();
            EXPECT_TRUE(text.ends_with(std::string(missing) + " ».")) << text;
        }
        for (const std::string& call : platform.calls) EXPECT_TRUE(call.starts_with("load")) << call;
        EXPECT_EQ(program.stage().front(), nullptr);
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

TEST(Program, IdleRunChangesTheHeaderValueAlone) {
    Pupil pupil;
    std::string expected = pupil.platform.ReadData("18");
    expected[2] = '\1';
    pupil.Quit();
    EXPECT_EQ(pupil.platform.ReadData("18"), expected);
}

TEST(Program, ChosenTableIsTheOnlyChange) {
    Pupil pupil;
    std::string expected = pupil.platform.ReadData("18");
    expected[2] = '\1';
    expected[72] = '\1';
    for (const auto& draws : std::vector<std::vector<ScriptedDraw>>{
             {kReseed, {2, 0}, {6, 0}, {6, 0}, kReseed, {2, 0}, {20, 0}, {14, 0}, {26, 0}},
             {kReseed, {12, 1}, {12, 0}, {3, 0}}}) {
        pupil.random.Expect(draws);
    }
    pupil.Click(pupil.screens.depart.chiffre[5]);
    pupil.Click(pupil.screens.apprendre.retour);
    pupil.Quit();
    EXPECT_EQ(pupil.platform.ReadData("18"), expected);
}

}  // namespace
