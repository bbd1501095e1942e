#include <algorithm>

#include "support/pupil.h"

namespace onze {

namespace {

// What a click does: the screen it opens, the way back from there, and the sound it makes.
struct Target {
    const Form* screen;
    const Label* back;
    Names heard;
};

// A zone of the start screen: its place, the state and the prompt that the pointer brings there, its click.
struct Zone {
    const Control* control;
    Rect box;
    int state;
    std::string prompt;
    const Target* target;
};

struct DepartTest : testing::Test {
    Pupil pupil;
    Screens& screens = pupil.screens;
    Depart& ui = screens.depart;
    Stage& stage = pupil.program.stage();

    const Target nothing{&ui.form, nullptr, {}};
    const Target quit{&ui.form, nullptr, {"5"}};
    const Target table{&screens.apprendre.form, &screens.apprendre.retour, {"5"}};
    const Target lessons{&screens.leçon.form, &screens.leçon.retour, {"5"}};
    const Target pythagoras{&screens.pythagore.form, &screens.pythagore.retour, {"5"}};
    const Target exercises{&screens.exercices.form, &screens.exercices.fin, {"5"}};
    const Target report{&screens.bilan.form, &screens.bilan.retour, {"5"}};
    const Target silent_report{&screens.bilan.form, &screens.bilan.retour, {}};

    const std::string choose = "Cliquez sur une table";
    const std::string jouons = "Jouons avec la Table de ";
    const std::string read = "La MULTIPLICATION ? Qu'est-ce donc ?";
    const std::string train = "Envie de vous exercer un peu ?";
    const std::string look_up = "Consulter le Bilan d'Utilisation";

    // Each lies above those before it.
    const std::vector<Zone> zones{
        {&ui.chiffre[0], {1800, 900, 510, 855}, 1, jouons + "2", &table},
        {&ui.chiffre[1], {2400, 1320, 510, 855}, 1, jouons + "3", &table},
        {&ui.chiffre[2], {3000, 1740, 510, 855}, 1, jouons + "4", &table},
        {&ui.chiffre[3], {3600, 2160, 510, 855}, 1, jouons + "5", &table},
        {&ui.chiffre[4], {4200, 2580, 510, 855}, 1, jouons + "6", &table},
        {&ui.chiffre[5], {4800, 3000, 510, 855}, 1, jouons + "7", &table},
        {&ui.chiffre[6], {5400, 3420, 510, 855}, 1, jouons + "8", &table},
        {&ui.chiffre[7], {6000, 3000, 510, 855}, 1, jouons + "9", &table},
        {&ui.chiffre[8], {6600, 2580, 915, 855}, 1, jouons + "10", &table},
        {&ui.chiffre[9], {7050, 1650, 885, 855}, 1, jouons + "11", &table},
        {&ui.chiffre[10], {8040, 900, 930, 855}, 1, jouons + "12", &table},
        {&ui.pytha, {60, 1275, 1725, 2520}, 2, "Consulter la Table de Pythagore", &pythagoras},
        {&ui.apprendre_leçon, {7935, 1815, 1320, 2370}, 5, read, &lessons},
        {&ui.exos, {3495, 4620, 4785, 2325}, 5, train, &exercises},
        {&ui.Image_bilan, {480, 4365, 3000, 1080}, 3, look_up, &report},
        {&ui.label_table, {4830, 2355, 1530, 195}, 0, choose, &nothing},
        {&ui.Label1, {30, 1065, 1680, 195}, 0, choose, &pythagoras},
        {&ui.Label2, {7815, 4215, 1485, 240}, 5, read, &lessons},
        {&ui.Label3, {4605, 6975, 1965, 195}, 5, train, &exercises},
        {&ui.bilan_utilisation, {900, 5790, 1485, 195}, 6, look_up, &silent_report},
        {&ui.heure, {735, 4680, 2325, 255}, 3, look_up, &silent_report},
        {&ui.dates, {600, 4905, 2625, 255}, 3, look_up, &silent_report},
        {&ui.fin, {8280, 6900, 1170, 240}, 4, "Voulez-vous déjà nous quitter ?", &quit},
    };
};

TEST_F(DepartTest, PromptIsReplacedByThatOfAnotherState) {
    const auto prompt_over = [this](const Control* zone) {
        zone ? pupil.MoveOnto(*zone) : stage.Move({1_px, 1_px});
        return ui.label_table.caption();
    };
    EXPECT_EQ(prompt_over(nullptr), "Cliquez sur une Table");  // as at the start, with its capital
    std::vector<Zone> all = zones;
    all.push_back({nullptr, {}, 0, choose, &nothing});
    for (const Zone& from : all) {
        for (const Zone& to : all) {
            SCOPED_TRACE(from.prompt + ", then " + to.prompt);
            prompt_over(from.state == 0 ? &ui.fin : nullptr);
            EXPECT_EQ(prompt_over(from.control), from.prompt);
            ui.label_table.SetCaption("left alone");
            EXPECT_EQ(prompt_over(to.control), to.state == from.state ? "left alone" : to.prompt);
        }
    }
    prompt_over(&ui.chiffre[2]);
    pupil.Click(ui.Label1);
    pupil.Click(screens.pythagore.retour);
    EXPECT_EQ(ui.label_table.caption(), "Voulez-vous déjà nous quitter ?") << "RETOUR lies over SORTIE";
}

TEST_F(DepartTest, EveryZoneWorksFromCornerToCorner) {
    Counters expected;
    for (auto zone = zones.begin(); zone != zones.end(); ++zone) {
        const Rect& box = zone->box;
        EXPECT_EQ(zone->control->box(), box);
        const Point last{box.right() - 1, box.bottom() - 1};
        for (const Point corner : {Point{box.left, box.top}, {last.x, box.top}, {box.left, last.y}, last}) {
            const auto covers = [corner](const Zone& other) {
                return other.control->HitBox().Contains(corner);
            };
            if (std::any_of(zone + 1, zones.end(), covers)) continue;
            SCOPED_TRACE(zone->prompt + " at " + std::to_string(corner.x) + "," + std::to_string(corner.y));
            const Target& target = *zone->target;
            if (target.screen == table.screen) {
                pupil.ExpectTable();
                ++expected.TableConsultations.at(static_cast<std::size_t>(zone - zones.begin()));
            }
            if (target.screen == exercises.screen) pupil.ExpectExercises();
            if (target.screen == lessons.screen) expected.LessonConsultations.Raise("");
            if (target.screen == pythagoras.screen) expected.PythagoreConsultations.Raise("");
            stage.Press(corner);
            stage.Release(corner);
            ASSERT_TRUE(pupil.Sees(*target.screen));
            EXPECT_EQ(pupil.Heard(), target.heard);
            EXPECT_EQ(pupil.program.counters(), expected);
            if (target.screen == table.screen) {
                EXPECT_EQ(screens.apprendre.titre.caption(), zone->prompt);
            }
            if (!target.back) continue;
            EXPECT_FALSE(ui.form.visible());
            pupil.Click(*target.back);
            EXPECT_TRUE(pupil.Sees(ui.form));
            EXPECT_FALSE(target.screen->visible());
            EXPECT_EQ(pupil.Heard(), Names{"3"});
        }
    }
}

TEST_F(DepartTest, ClockShowsEverySecondAndTheDateStays) {
    pupil.host.long_date = "dimanche 22 novembre 2026";
    const Names times{"10:20:30", "10:20:31", "10:20:32", "00:00:00", "00:00:01"};
    for (std::size_t second = 1; second < times.size(); ++second) {
        pupil.host.time_of_day = times[second];
        pupil.Wait(999);
        EXPECT_EQ(ui.heure.caption(), times[second - 1]);
        pupil.Wait(1);
        EXPECT_EQ(ui.heure.caption(), times[second]);
        if (second == 2) pupil.Click(ui.pytha);  // the clock runs on unseen
    }
    pupil.Click(screens.pythagore.retour);
    EXPECT_EQ(ui.dates.caption(), "Samedi 21 novembre 2026");
}

TEST(Depart, FullConsultationCounterStopsTheRunBeforeItsScreenOpens) {
    Counters counters;
    counters.TableConsultations.fill(32767);
    counters.LessonConsultations = counters.PythagoreConsultations = TaggedNumber::Long(2147483647);
    const auto click = [&counters](auto control_of, const std::string& counter) {
        Pupil pupil(counters);
        Screens& screens = pupil.screens;
        pupil.ClickIntoFull(control_of(screens.depart), counter);
        EXPECT_EQ(pupil.Heard(), Names{"5"});
        EXPECT_TRUE(pupil.Sees(screens.depart.form));
        return screens.apprendre.titre.caption() + screens.pythagore.operation.caption();
    };
    for (int i = 0; i < kStoredTables; ++i) {
        EXPECT_EQ(click([i](Depart& ui) -> Control& { return ui.chiffre[i]; },
                        "TableConsultations(" + std::to_string(i) + ")"),
                  "Jouons avec la Table de " + std::to_string(i + 2));
    }
    EXPECT_EQ(click([](Depart& ui) -> Control& { return ui.pytha; }, "PythagoreConsultations"), "");
    EXPECT_EQ(click([](Depart& ui) -> Control& { return ui.Label2; }, "LessonConsultations"), "");
}

TEST(Depart, WhatHasNoTextIsNamedByItsPrompt) {
    Pupil pupil;
    const Depart& ui = pupil.screens.depart;
    EXPECT_EQ(ui.chiffre[10].name(), "Jouons avec la Table de 12");
    EXPECT_EQ(ui.exos.name(), "Envie de vous exercer un peu ?");
    EXPECT_EQ(ui.Label3.name(), "Un peu d'entraînement");
}

}  // namespace

}  // namespace onze
