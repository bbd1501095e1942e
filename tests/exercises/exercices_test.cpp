#include "exercises/exercices.h"

#include "support/pupil.h"

namespace onze {

namespace {

TEST(Exercices, ArrowsRunThroughTheirValues) {
    Pupil pupil;
    const Exercices& screen = pupil.screens.exercices;
    pupil.OpenExercises();
    pupil.Click(screen.membership.ui.oui);
    TryOut(pupil, screen.membership.ui.flech1, screen.membership.ui.chiffre2, Numbers(" ", 0, 200));
    TryOut(pupil, screen.product.ui.flech2, screen.product.ui.chiffre3, Numbers(" ", 0, 144));
    TryOut(pupil, screen.factor_pair.ui.flech3, screen.factor_pair.ui.chiffre4, Numbers(" ", 3, 12));
    pupil.Click(screen.factor_pair.ui.chiffre4);
    TryOut(pupil, screen.factor_pair.ui.flech4, screen.factor_pair.ui.chiffre5, Numbers(" ", 0, 100));
    TryOut(pupil, screen.missing_factor.ui.flech5, screen.missing_factor.ui.chiffre6, Numbers(" ", 0, 12));
    TryOut(pupil, screen.factored_sum.ui.flech6, screen.factored_sum.ui.chiffre7, Numbers(" ", 0, 100));
    TryOut(pupil, screen.factored_sum.ui.flech7, screen.factored_sum.ui.chiffre8, Numbers(" ", 0, 500, 6));
    TryOut(pupil, screen.note_factor.ui.flech8, screen.note_factor.ui.chiffre9,
           {"DO", "RE", "MI", "FA", "SOL", "LA", "SI"});
}

}  // namespace

}  // namespace onze
