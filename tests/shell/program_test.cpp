#include "shell/program.h"

#include "support/pupil.h"
#include "support/run_time_error.h"

namespace {

using namespace std::string_literals;

const Names kHideTaskbar{"find <Shell_traywnd> <>", "place 77 after 0 at 0,0,0,0 flags 80"};
const Names kShowTaskbar{"find <Shell_traywnd> <>", "place 77 after 0 at 0,0,0,0 flags 40"};

Names Change(const std::string& size) {
    return {"mode 0", "mode 1", "mode 2", "mode 3", "change " + size + "x24 fields 180000 flags 0"};
}

// The first so many of the pictures.
Names Load(int pictures = 6) {
    Names calls;
    for (int i = 0; i < pictures; ++i) calls.push_back("load datas/" + std::to_string(11 + i));
    return calls;
}

Names operator+(Names first, const Names& second) {
    first.insert(first.end(), second.begin(), second.end());
    return first;
}

TEST(Program, StartsUpInOrder) {
    Pupil pupil;
    Screens& screens = pupil.screens;
    EXPECT_EQ(pupil.platform.calls, Load() + kHideTaskbar + Change("640x480"));
    EXPECT_TRUE(pupil.Sees(screens.depart.form));
    EXPECT_EQ(screens.depart.dates.caption(), "Samedi 21 novembre 2026");
    EXPECT_EQ(screens.depart.heure.caption(), "10:20:30");
    EXPECT_EQ(screens.leçon.l9.caption(), "342\rX  57");
    const Form* forms[] = {&screens.apprendre.form, &screens.bilan.form,  &screens.exercices.form,
                           &screens.leçon.form,     &screens.depart.form, &screens.pythagore.form};
    Names pictures;
    for (const Form* form : forms) pictures.push_back("load datas/" + SourceOf(form->picture()));
    EXPECT_EQ(pictures, Load());
}

TEST(Program, QuitsInOrderWithTheSizeOfTheStart) {
    Pupil pupil;
    pupil.platform.calls.clear();
    pupil.Click(pupil.screens.depart.fin);
    EXPECT_EQ(pupil.platform.calls, (Names{"stop", "start datas/5", "write datas/18"}) + Change("1024x768") +
                                        kShowTaskbar + Names{"end"});
}

// What lacks stops the run at its point, is named, and leaves the display and the taskbar alone.
TEST(Program, MissingFilesStopTheStart) {
    for (const char* missing : {"18", "11", "12", "13", "14", "15", "16"}) {
        HeadlessPlatform platform;
        ScriptedRandom random;
        Program program(platform, random);
        std::filesystem::remove(platform.folder / "datas" / missing);
        try {
            program.Load();
            ADD_FAILURE() << "started without " << missing;
        } catch (const RunTimeError& error) {
            EXPECT_NE(std::string(error.what()).find(missing + " »"s), std::string::npos) << error.what();
        }
        EXPECT_EQ(platform.calls, missing == "18"s ? Names() : Load(std::stoi(missing) - 10));
        EXPECT_EQ(program.stage().front(), nullptr);
    }
}

TEST(Program, FailedSaveStopsTheQuit) {
    Pupil pupil;
    const std::string before = pupil.platform.ReadData("18");
    pupil.platform.calls.clear();
    pupil.platform.disk_full = true;
    EXPECT_THROW(pupil.Click(pupil.screens.depart.fin), RunTimeError);
    EXPECT_EQ(pupil.platform.calls, (Names{"stop", "start datas/5", "write datas/18"}));
    EXPECT_EQ(pupil.platform.ReadData("18"), before);
}

// What the record lacks at the start is blank or zero, and stands in it after the quit.
TEST(Program, DoesWithAShortRecordAndNoTaskbar) {
    HeadlessPlatform platform;
    ScriptedRandom random;
    Program program(platform, random);
    platform.WriteData("18", "\2\0\7"s);
    platform.taskbar = 0;
    program.Load();
    const Names hide_nothing{"find <Shell_traywnd> <>", "place 0 after 0 at 0,0,0,0 flags 80"};
    EXPECT_EQ(platform.calls, Load() + hide_nothing + Change("640x480"));
    program.screens().depart.fin.on_click();
    EXPECT_EQ(platform.ReadData("18"), "\2\0\1\0          \2\0\0\0\2\0\0\0\2\0\0\0"s + std::string(94, '\0'));
}

}  // namespace
