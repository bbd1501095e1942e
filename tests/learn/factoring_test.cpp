#include "support/pupil.h"

namespace {

// Chooses a table from the start screen; the four exercises draw their first questions from the script.
void Choose(Pupil& pupil, int table) {
    pupil.Click(pupil.screens.depart.chiffre[table - 2]);
}

TEST(Factoring, RightAnswerToASum) {
    Pupil pupil;
    pupil.random.Expect({kReseed, {2, 0}, {6, 2}, {6, 3}});
    Choose(pupil, 6);
    auto& ui = pupil.screens.apprendre.factoring.ui;
    EXPECT_EQ(ui.enonce.caption(), " 18 + 24 =  6 X");
    EXPECT_EQ(pupil.Heard(), Names{"5"});
    pupil.Tap(ui.chiffre);  // unanswered
    pupil.Turn(ui.fleche, 7);
    EXPECT_EQ(ui.chiffre.caption(), "7");
    pupil.Click(ui.chiffre);
    EXPECT_EQ(pupil.Heard(), (Names{"1", "2", "3", "4", "5", "6", "7", "1.vic"}));
    EXPECT_EQ(ui.label_table1.caption(),
              "Gagné ! Vous avez trouvé le bon résultat !\rCliquez sur Continuer pour un autre exercice.");
}

}  // namespace
