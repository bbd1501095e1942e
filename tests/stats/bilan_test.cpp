#include "stats/bilan.h"

#include "support/pupil.h"

namespace onze {

namespace {

TEST(Bilan, SentencesAndTheWordForTries) {
    const struct {
        int solves;
        const char* tries;
    } cases[] = {{0, "Il y a eu 0 essai de "},
                 {1, "Il y a eu 1 essai de "},
                 {2, "Il y a eu 2 essais de "},
                 {40000, "Il y a eu 40000 essais de "},
                 {-2, "Il y a eu-2 essai de "}};
    for (const auto& [solves, tries] : cases) {
        Pupil pupil({.LessonConsultations = TaggedNumber::Integer(12),
                     .PythagoreConsultations = TaggedNumber::Integer(-1),
                     .PythagoreSolves = TaggedNumber::Long(solves)});
        const Bilan& screen = pupil.screens.bilan;
        pupil.Click(pupil.screens.depart.heure);
        EXPECT_EQ(screen.pour_pythagore.caption(),
                  "--->  La Table de Pythagore a été consultée-1 fois.\r" + std::string(tries) +
                      "résolution de multiplication grâce à la Table de Pythagore.");
        EXPECT_EQ(screen.pour_lecons.caption(),
                  "--->  La page des rappels sur la multiplication a été consultée 12 fois.");
    }
}

TEST(Bilan, FilledAtEachOpening) {
    Pupil pupil;
    const Bilan& screen = pupil.screens.bilan;
    pupil.Click(pupil.screens.depart.bilan_utilisation);
    for (const Label* figure : {&screen.consult[0], &screen.exos[0], &screen.juste[0], &screen.faux[0],
                                &screen.n_exo, &screen.n_exoj, &screen.n_exof}) {
        EXPECT_EQ(figure->caption(), "0");  // without a blank
    }
    pupil.Click(screen.retour);
    pupil.Click(pupil.screens.depart.pytha);
    pupil.Click(pupil.screens.pythagore.retour);
    pupil.Click(pupil.screens.depart.Image_bilan);
    EXPECT_TRUE(
        screen.pour_pythagore.caption().starts_with("--->  La Table de Pythagore a été consultée 1 fois."));
}

}  // namespace

}  // namespace onze
