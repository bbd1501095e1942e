#include "support/pupil.h"

namespace onze {

namespace {

TEST(Apprendre, LeavingPutsTheFirstExerciseBack) {
    Pupil pupil;
    const auto& ui = pupil.screens.apprendre.factoring.ui;
    pupil.ChooseTable(5);
    pupil.Turn(ui.fleche, 3);
    pupil.Click(ui.chiffre);
    pupil.Click(pupil.screens.apprendre.retour);
    EXPECT_EQ(ui.chiffre.caption(), "0");
    EXPECT_FALSE(ui.encore_un.visible());
}

TEST(Apprendre, ArrowsRunThroughTheirValues) {
    Pupil pupil;
    const Apprendre& screen = pupil.screens.apprendre;
    Names letters;
    for (char letter = 'A'; letter <= 'Z'; ++letter) letters.push_back({letter});
    for (const int table : {12, 7}) {
        pupil.ChooseTable(table);
        pupil.Click(screen.multiple.ui.oui);
        TryOut(pupil, screen.factoring.ui.fleche, screen.factoring.ui.chiffre, Numbers("", 0, 50));
        TryOut(pupil, screen.multiple.ui.fleche2, screen.multiple.ui.chiffre2, Numbers("", 0, 50));
        TryOut(pupil, screen.multiple.ui.fleche3, screen.multiple.ui.chiffre3, Numbers("", 0, 1000, table));
        TryOut(pupil, screen.letter_code.ui.fleche4, screen.letter_code.ui.chiffre4, letters);
        TryOut(pupil, screen.missing_sign.ui.fleche5, screen.missing_sign.ui.signe, {"+", "-", "X"});
        pupil.Click(screen.retour);
        pupil.Heard();
    }
}

}  // namespace

}  // namespace onze
