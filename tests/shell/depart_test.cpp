#include "support/pupil.h"

namespace {

const std::string kChoose = "Cliquez sur une table";
const std::string kReport = "Consulter le Bilan d'Utilisation";
const std::string kLessons = "La MULTIPLICATION ? Qu'est-ce donc ?";
const std::string kExercises = "Envie de vous exercer un peu ?";

TEST(Depart, PromptFollowsThePointer) {
    Pupil pupil;
    auto& ui = pupil.screens.depart;
    pupil.program.stage().Move({1_px, 1_px});
    EXPECT_EQ(ui.label_table.caption(),
              "Cliquez sur une Table");  // the prompt at the start, with its capital
    const std::string left = "a prompt that stays";
    const std::vector<std::pair<const Control*, std::string>> walk{
        {&ui.chiffre[0], "Jouons avec la Table de 2"},
        {&ui.chiffre[10], left},  // one state
        {&ui.label_table, kChoose},
        {&ui.chiffre[10], "Jouons avec la Table de 12"},
        {&ui.Label1, kChoose},  // not the prompt of its picture
        {&ui.pytha, "Consulter la Table de Pythagore"},
        {&ui.Image_bilan, kReport},
        {&ui.dates, left},
        {&ui.bilan_utilisation, kReport},
        {&ui.heure, kReport},
        {&ui.fin, "Voulez-vous déjà nous quitter ?"},
        {&ui.Label2, kLessons},
        {&ui.exos, left},
        {&ui.Label3, left},
        {&ui.heure, kReport},
        {&ui.Label3, kExercises},
        {&ui.apprendre_leçon, left},
        {&ui.dates, kReport},
        {&ui.exos, kExercises},
        {&ui.chiffre[7], "Jouons avec la Table de 9"},
    };
    for (const auto& [control, prompt] : walk) {
        ui.label_table.SetCaption(left);
        pupil.MoveOnto(*control);
        EXPECT_EQ(ui.label_table.caption(), prompt);
    }
    pupil.program.stage().Move({1_px, 1_px});
    EXPECT_EQ(ui.label_table.caption(), kChoose);
    pupil.Click(ui.pytha);
    pupil.Click(pupil.screens.pythagore.retour);
    EXPECT_EQ(ui.label_table.caption(), "Voulez-vous déjà nous quitter ?") << "RETOUR lies over SORTIE";
}

TEST(Depart, EveryZoneOpensItsScreenCountsAndComesBack) {
    struct Case {
        Image DepartUi::*image;
        Label DepartUi::*label;
        Form* screen;
        Label* back;
        bool label_sounds;
        bool image_sounds;
    };
    Pupil pupil;
    Screens& screens = pupil.screens;
    const Case cases[] = {
        {&DepartUi::apprendre_leçon, &DepartUi::Label2, &screens.leçon.form, &screens.leçon.retour, true,
         true},
        {&DepartUi::pytha, &DepartUi::Label1, &screens.pythagore.form, &screens.pythagore.retour, true, true},
        {&DepartUi::Image_bilan, &DepartUi::bilan_utilisation, &screens.bilan.form, &screens.bilan.retour,
         false, true},
        {nullptr, &DepartUi::heure, &screens.bilan.form, &screens.bilan.retour, false, false},
        {nullptr, &DepartUi::dates, &screens.bilan.form, &screens.bilan.retour, false, false},
    };
    for (const Case& c : cases) {
        for (const bool by_label : {true, false}) {
            if (!by_label && !c.image) continue;
            if (by_label) {
                pupil.Click(screens.depart.*c.label);
            } else {
                pupil.Click(screens.depart.*c.image);
            }
            EXPECT_TRUE(pupil.Sees(*c.screen));
            EXPECT_FALSE(screens.depart.form.visible());
            EXPECT_EQ(pupil.Heard(), (by_label ? c.label_sounds : c.image_sounds) ? Names{"5"} : Names{});
            pupil.Click(*c.back);
            EXPECT_EQ(pupil.Heard(), Names{"3"});
            EXPECT_TRUE(pupil.Sees(screens.depart.form));
            EXPECT_FALSE(c.screen->visible());
        }
    }
    const Counters saved = pupil.Quit();
    EXPECT_EQ(saved.LessonConsultations.value(), 2);
    EXPECT_EQ(saved.PythagoreConsultations.value(), 2);
}

TEST(Depart, ZonesStandWhereThePictureHasThem) {
    Pupil pupil;
    auto& ui = pupil.screens.depart;
    for (int i = 0; i < 7; ++i) {
        EXPECT_EQ(ui.chiffre[i].box(), (Rect{1800 + 600 * i, 900 + 420 * i, 34_px, 57_px}));
    }
    EXPECT_EQ(ui.chiffre[7].box(), (Rect{400_px, 200_px, 34_px, 57_px}));
    EXPECT_EQ(ui.chiffre[8].box(), (Rect{440_px, 172_px, 61_px, 57_px}));
    EXPECT_EQ(ui.chiffre[9].box(), (Rect{470_px, 110_px, 59_px, 57_px}));
    EXPECT_EQ(ui.chiffre[10].box(), (Rect{536_px, 60_px, 62_px, 57_px}));
}

TEST(Depart, ClockTicksEverySecondEvenUnseen) {
    Pupil pupil;
    pupil.platform.time_of_day = "10:20:31";
    pupil.Wait(999);
    EXPECT_EQ(pupil.screens.depart.heure.caption(), "10:20:30");
    pupil.Wait(1);
    EXPECT_EQ(pupil.screens.depart.heure.caption(), "10:20:31");
    pupil.Click(pupil.screens.depart.pytha);
    pupil.platform.time_of_day = "10:20:32";
    pupil.platform.long_date = "dimanche 22 novembre 2026";
    pupil.Wait(1000);
    EXPECT_EQ(pupil.screens.depart.heure.caption(), "10:20:32");
    EXPECT_EQ(pupil.screens.depart.dates.caption(), "Samedi 21 novembre 2026");
}

TEST(Depart, FullConsultationCounterStopsTheRunBeforeTheTableOpens) {
    for (int i = 0; i < kStoredTables; ++i) {
        Counters counters;
        counters.TableConsultations[static_cast<std::size_t>(i)] = 32767;
        Pupil pupil;
        pupil.StartWith(counters);
        pupil.ClickIntoFull(pupil.screens.depart.chiffre[i], "TableConsultations(" + std::to_string(i) + ")");
        EXPECT_EQ(pupil.Heard(), Names{"5"});
        EXPECT_EQ(pupil.screens.apprendre.titre.caption(),
                  "Jouons avec la Table de " + std::to_string(i + 2));
        EXPECT_FALSE(pupil.screens.apprendre.form.visible());
    }
}

}  // namespace
