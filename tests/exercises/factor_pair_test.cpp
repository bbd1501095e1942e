#include "exercises/exerciser.h"

namespace {

TEST(FactorPair, AnyDivisorOpensTheSecondStep) {
    struct Case {
        Draws draws;
        int divisor;
        int entered;
        std::string begun;
        std::string message;
    };
    const std::vector<Case> cases{
        {{{10, 0}, {10, 5}}, 3, 8, " 24 =  3 X", kBravo},
        {{{10, 0}, {10, 5}}, 12, 2, " 24 =  12 X", kBravo},  // neither of those drawn
        {{{10, 0}, {10, 5}}, 6, 8, " 24 =  6 X", "Erreur ! 24 = 6 X 4 !" + kGoOn},
        // The second factor is drawn again until it differs from the first.
        {{{10, 9}, {10, 9}, {10, 9}, {10, 8}}, 11, 0, " 132 =  11 X", "Erreur ! 132 = 11 X 12 !" + kGoOn},
    };
    for (const Case& c : cases) {
        Exerciser exerciser({.factor_pair = c.draws});
        auto& ui = exerciser.screen.factor_pair.ui;
        ExpectVisible({&ui.enonce3, &ui.chiffre4, &ui.flech3}, {&ui.chiffre5, &ui.flech4, &ui.encor_trois});
        exerciser.Enter(ui.flech3, c.divisor);
        exerciser.Click(ui.chiffre4);
        EXPECT_EQ(exerciser.Heard(), Names{"1.vic"});
        EXPECT_EQ(ui.enonce3.caption(), c.begun);
        EXPECT_EQ(ui.chiffre5.box().left, ui.enonce3.box().right() + 3_px);
        EXPECT_EQ(ui.flech4.box().left, ui.chiffre5.box().left - 8_px);
        ExpectVisible({&ui.enonce3, &ui.chiffre5, &ui.flech4}, {&ui.chiffre4, &ui.flech3, &ui.encor_trois});
        exerciser.Click(ui.chiffre5);  // nothing entered yet
        EXPECT_EQ(ui.texte2.caption(), kNowEnter);
        exerciser.Enter(ui.flech4, c.entered);
        exerciser.Finish(ui.chiffre5, ui.texte2, c.message, ui.encor_trois, {&ui.flech3, &ui.flech4});
    }
}

TEST(FactorPair, OtherNumbersEndIt) {
    Exerciser exerciser({.factor_pair = {{10, 1}, {10, 4}}});
    auto& ui = exerciser.screen.factor_pair.ui;
    EXPECT_EQ(ui.enonce3.caption(), "Dans quelle Table de Multiplication puis-je trouver 28 ?");
    exerciser.Enter(ui.flech3, 3);
    exerciser.Finish(ui.chiffre4, ui.texte2,
                     "Erreur ! On peut trouver 28 dans les Tables de Multiplication par 4 et par 7 !\r"
                     " 28 = 4 X 7 ! Cliquez sur Continuer pour un autre exercice.",
                     ui.encor_trois, {&ui.flech3, &ui.flech4});
}

}  // namespace
