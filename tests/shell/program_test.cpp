#include "shell/program.h"

#include "support/pupil.h"

namespace onze {

namespace {

using namespace std::string_literals;

const Names kHideTaskbar{"find <Shell_traywnd> <>", "place 77 after 0 at 0,0,0,0 flags 80"};
const Names kShowTaskbar{"find <Shell_traywnd> <>", "place 77 after 0 at 0,0,0,0 flags 40"};

Names Change(const std::string& size) {
    return {"mode 0", "mode 1", "mode 2", "mode 3", "change " + size + "x24 fields 180000 flags 0"};
}

// The reading of the counters and of the first so many of the pictures.
Names Load(int pictures = 6) {
    Names calls{"read 18"};
    for (int i = 0; i < pictures; ++i) calls.push_back("read " + std::to_string(11 + i));
    return calls;
}

Names operator+(Names first, const Names& second) {
    first.insert(first.end(), second.begin(), second.end());
    return first;
}

TEST(Program, StartsUpInOrder) {
    Pupil pupil;
    Screens& screens = pupil.screens;
    EXPECT_EQ(pupil.host.calls, Load() + kHideTaskbar + Change("640x480"));
    EXPECT_TRUE(pupil.Sees(screens.depart.form));
    EXPECT_EQ(screens.depart.dates.caption(), "Samedi 21 novembre 2026");
    EXPECT_EQ(screens.depart.heure.caption(), "10:20:30");
    EXPECT_EQ(screens.leçon.l9.caption(), "342\rX  57");
    const Form* forms[] = {&screens.apprendre.form, &screens.bilan.form,  &screens.exercices.form,
                           &screens.leçon.form,     &screens.depart.form, &screens.pythagore.form};
    Names pictures;
    for (const Form* form : forms) pictures.push_back(SourceOf(form->picture()));
    EXPECT_EQ(pictures, (Names{"11", "12", "13", "14", "15", "16"}));
    EXPECT_EQ(SourceOf(screens.divers.anim.picture), "anim");
}

TEST(Program, QuitsInOrderWithTheSizeOfTheStart) {
    Pupil pupil;
    pupil.host.calls.clear();
    pupil.Click(pupil.screens.depart.fin);
    EXPECT_EQ(pupil.host.calls,
              (Names{"stop", "start 5", "read 18", "write 18"}) + Change("1024x768") + kShowTaskbar);
    EXPECT_EQ(pupil.reaction.state, Reaction::State::kEnded);
    pupil.host.calls.clear();
    pupil.Tap(pupil.screens.depart.fin);
    EXPECT_EQ(pupil.host.calls, Names()) << "after the end";
}

// What lacks stops the run at its point, is named, and leaves the display and the taskbar alone.
TEST(Program, MissingFilesStopTheStart) {
    for (const char* missing : {"18", "11", "12", "13", "14", "15", "16"}) {
        HeadlessHost host;
        ScriptedRandom random;
        Program program(host, random);
        host.files.erase(missing);
        const Reaction reaction = program.Take(event::Started());
        EXPECT_EQ(reaction.state, Reaction::State::kFailed);
        EXPECT_EQ(reaction.failure, (missing == "18"s ? "Fichier des compteurs" : "Image") +
                                        " introuvable ou illisible : « datas/"s + missing + " ».");
        EXPECT_EQ(host.calls, missing == "18"s ? Load(0) : Load(std::stoi(missing) - 10));
        EXPECT_EQ(program.stage().front(), nullptr);
    }
}

TEST(Program, AFailedSaveIsToldAndTheDesktopPutBack) {
    Pupil pupil;
    const std::string before = pupil.host.files["18"];
    pupil.host.calls.clear();
    pupil.host.disk_full = true;
    pupil.Click(pupil.screens.depart.fin);
    EXPECT_EQ(pupil.reaction.state, Reaction::State::kFailed);
    EXPECT_EQ(pupil.reaction.failure, "Enregistrement impossible : « datas/18 ».");
    EXPECT_EQ(pupil.host.calls,
              (Names{"stop", "start 5", "read 18", "write 18"}) + Change("1024x768") + kShowTaskbar);
    EXPECT_EQ(pupil.host.files["18"], before);
}

// What the record lacks at the start is blank or zero, and stands in it after the quit.
TEST(Program, DoesWithAShortRecordAndNoTaskbar) {
    HeadlessHost host;
    ScriptedRandom random;
    Program program(host, random);
    host.files["18"] = "\2\0\7"s;
    host.taskbar = 0;
    program.Take(event::Started());
    const Names hide_nothing{"find <Shell_traywnd> <>", "place 0 after 0 at 0,0,0,0 flags 80"};
    EXPECT_EQ(host.calls, Load() + hide_nothing + Change("640x480"));
    program.screens().depart.fin.on_click();
    EXPECT_EQ(host.files["18"], "\2\0\1\0          \2\0\0\0\2\0\0\0\2\0\0\0"s + std::string(94, '\0'));
}

// The front door in a window of twice the page's height and more than twice its width, page in the middle.
TEST(Program, TakesPixelsOfItsWindow) {
    Pupil pupil;
    Program& program = pupil.program;
    const Reaction resized = program.Take(event::WindowResized{1920, 960});
    EXPECT_EQ(program.view().page(), (PixelBox{320, 0, 1280, 960}));
    EXPECT_EQ(resized.repaint, (PixelBox{318, -2, 1284, 964}));
    EXPECT_TRUE(program.Take(event::PointerMoved{{320 + 2 * 590, 2 * 468}}).hand);
    EXPECT_EQ(pupil.screens.depart.label_table.caption(), "Voulez-vous déjà nous quitter ?");
    EXPECT_FALSE(program.Take(event::PointerMoved{{10, 10}}).hand);
    EXPECT_EQ(program.Take(event::TimePassed()).wake_at, pupil.host.now + 1000);

    pupil.ChooseTable(7);
    const Label& answer = pupil.screens.apprendre.factoring.ui.chiffre;
    const Pixel more{320 + 2 * 485, 2 * 57};
    const Reaction pressed = program.Take(event::PointerPressed{.at = more});
    EXPECT_EQ(pressed.wake_at, pupil.host.now + 500);
    EXPECT_EQ(answer.caption(), "1");
    EXPECT_FALSE(pressed.repaint.empty());
    program.Take(event::PointerLost());
    pupil.Wait(1000);
    EXPECT_EQ(answer.caption(), "1");
    for (const int turn : {30, 30, 60, 130, -20, 10}) program.Take(event::WheelTurned{more, turn});
    EXPECT_EQ(answer.caption(), "3");
    EXPECT_EQ(program.Take(event::TimePassed()).say, "");
    pupil.Click(answer);
    EXPECT_EQ(pupil.reaction.say, pupil.screens.apprendre.factoring.ui.label_table1.caption());
}

// On a page of 1024 x 768, pixels beside "NON", beside the arrows and between both.
TEST(Program, AFingerNeedNotHitExactly) {
    for (const bool finger : {true, false}) {
        Pupil pupil;
        pupil.program.Take(event::WindowResized{1024, 768});
        pupil.ChooseTable(7);
        const auto tap = [&](Pixel at) {
            pupil.program.Take(event::PointerPressed{.at = at, .finger = finger});
            pupil.program.Take(event::PointerReleased{{at.x + 1, at.y}});
        };
        const Label& factor = pupil.screens.apprendre.factoring.ui.chiffre;
        tap({795 + 2, 120});  // the lower half, whose arrows end at 793
        tap({795 + 2, 87});
        EXPECT_EQ(factor.caption(), finger ? "1" : "??");
        const Label& non = pupil.screens.apprendre.multiple.ui.non;
        const int below = (non.HitBox().bottom() * 16 / 10) / 15 + 1;
        tap({752, below + 20});
        EXPECT_TRUE(non.visible()) << "farther than 22 pixels from the middle";
        tap({752, below + 1});
        EXPECT_EQ(non.visible(), !finger);
    }
}

TEST(Program, TakesADoubleClickForOneGesture) {
    const auto click = [](Pupil& pupil, std::int64_t time) {
        const Pixel back{590, 467};
        pupil.program.Take(event::PointerPressed{
            .at = back, .time = time, .double_click_time = 400, .double_click_distance = 2});
        return pupil.program.Take(event::PointerReleased{back}).state;
    };
    for (const bool one_gesture : {true, false}) {
        Pupil pupil;
        pupil.Click(pupil.screens.depart.pytha);
        click(pupil, 5000);
        EXPECT_TRUE(pupil.Sees(pupil.screens.depart.form));
        EXPECT_EQ(click(pupil, one_gesture ? 5400 : 5401),
                  one_gesture ? Reaction::State::kRuns : Reaction::State::kEnded);
    }
}

}  // namespace

}  // namespace onze
