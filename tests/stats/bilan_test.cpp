#include "stats/bilan.h"

#include "support/pupil.h"

namespace {

TEST(Bilan, EveryCounterInItsPlace) {
    Counters counters;
    for (std::size_t i = 0; i < kStoredTables; ++i) {
        counters.TableConsultations[i] = static_cast<std::int16_t>(100 + i);
        counters.TableExercises[i] = static_cast<std::int16_t>(20000 + i);
        counters.TableRight[i] = static_cast<std::int16_t>(300 + i);
        counters.TableWrong[i] = static_cast<std::int16_t>(-32768 + static_cast<int>(i));
    }
    counters.PuzzleCount = 32767;
    counters.PuzzleRight = -3;
    counters.PuzzleWrong = 12;
    Pupil pupil(counters);
    const Bilan& screen = pupil.screens.bilan;
    pupil.Click(pupil.screens.depart.dates);
    for (int i = 0; i < kStoredTables; ++i) {
        EXPECT_EQ(screen.consult[i].caption(), std::to_string(100 + i));
        EXPECT_EQ(screen.exos[i].caption(), std::to_string(20000 + i));
        EXPECT_EQ(screen.juste[i].caption(), std::to_string(300 + i));
        EXPECT_EQ(screen.faux[i].caption(), std::to_string(-32768 + i));
        EXPECT_EQ(screen.faux[i].Layout().font, screen.faux[i].style().font) << "drawn smaller";
    }
    EXPECT_EQ(screen.n_exo.caption(), "32767");
    EXPECT_EQ(screen.n_exoj.caption(), "-3");
    EXPECT_EQ(screen.n_exof.caption(), "12");
}

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
    pupil.Click(screen.retour);
    pupil.Click(pupil.screens.depart.pytha);
    pupil.Click(pupil.screens.pythagore.retour);
    pupil.Click(pupil.screens.depart.Image_bilan);
    EXPECT_TRUE(
        screen.pour_pythagore.caption().starts_with("--->  La Table de Pythagore a été consultée 1 fois."));
}

}  // namespace
