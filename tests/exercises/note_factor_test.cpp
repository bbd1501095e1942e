#include "exercises/exerciser.h"

namespace {

TEST(NoteFactor, EveryNoteRightAndWrong) {
    const Names notes{"DO", "RE", "MI", "FA", "SOL", "LA", "SI"};
    for (int drawn = 0; drawn < 7; ++drawn) {
        for (const bool right : {true, false}) {
            Exerciser exerciser({.note_factor = {{7, drawn}, {12, 11}}});
            auto& ui = exerciser.screen.note_factor.ui;
            const std::string number = std::to_string(drawn + 3);
            const std::string question = "X 12 = " + std::to_string((drawn + 3) * 12);
            EXPECT_EQ(ui.enonce7.caption(), question);
            EXPECT_EQ(ui.chiffre9.caption(), "DO");
            EXPECT_EQ(ui.texte5.caption(),
                      "Sachant que DO=3, RE=4 ... LA=8, SI=9, entrez votre réponse grâce aux flèches puis "
                      "cliquez sur cette réponse pour la correction.");
            const int entered = right ? drawn : (drawn + 1) % 7;
            exerciser.Turn(ui.flech8, entered);
            EXPECT_EQ(ui.chiffre9.caption(), notes[static_cast<std::size_t>(entered)]);
            EXPECT_EQ(exerciser.Heard().size(), static_cast<std::size_t>(entered));
            exerciser.Click(ui.chiffre9);

            const std::string& note = notes[static_cast<std::size_t>(drawn)];
            EXPECT_EQ(ui.texte5.caption(), (right ? "Bravo ! " : "Erreur ! ") + ("C'est " + note) + " car " +
                                               note + " = " + number + " donc \r " + number + " " + question +
                                               kGoOn);
            EXPECT_EQ(exerciser.Heard(), Names{right ? "1.vic" : "1.def"});
            ExpectVisible({&ui.encor_six}, {&ui.flech8});
            exerciser.Tap(ui.chiffre9);
            exerciser.random.Expect({{7, 1}, {12, 0}});
            exerciser.Click(ui.encor_six);
            EXPECT_EQ(ui.enonce7.caption() + ui.chiffre9.caption(), "X 1 = 4DO");
            ExpectVisible({&ui.flech8}, {&ui.encor_six});
            EXPECT_EQ(PuzzlesOf(exerciser), (Puzzles{1, right, !right}));
        }
    }
}

}  // namespace
