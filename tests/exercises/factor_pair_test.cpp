#include "exercises/exerciser.h"

namespace {

TEST(FactorPair, AnyDivisorOpensTheSecondStep) {
    struct Case {
        Draws draws;
        int divisor;
        int entered;
        bool right;
        std::string begun;
        std::string message;
    };
    const std::vector<Case> cases{
        {{{10, 0}, {10, 5}}, 3, 8, true, " 24 =  3 X", kBravo},
        {{{10, 0}, {10, 5}}, 12, 2, true, " 24 =  12 X", kBravo},  // neither of those drawn
        {{{10, 0}, {10, 5}}, 6, 8, false, " 24 =  6 X", "Erreur ! 24 = 6 X 4 !"},
        {{{10, 9}, {10, 9}, {10, 9}, {10, 8}}, 11, 0, false, " 132 =  11 X", "Erreur ! 132 = 11 X 12 !"},
    };
    for (const Case& c : cases) {
        Exerciser exerciser({.factor_pair = c.draws});
        auto& ui = exerciser.screen.factor_pair.ui;
        EXPECT_EQ(ui.texte2.caption(), kEnterOnTwoLines);
        ExpectVisible({&ui.enonce3, &ui.chiffre4, &ui.flech3}, {&ui.chiffre5, &ui.flech4, &ui.encor_trois});
        exerciser.Enter(ui.flech3, c.divisor);
        exerciser.Click(ui.chiffre4);
        EXPECT_EQ(exerciser.Heard(), Names{"1.vic"});
        EXPECT_EQ(ui.texte2.caption(), kNowEnter);
        EXPECT_EQ(ui.enonce3.caption(), c.begun);
        EXPECT_EQ(ui.chiffre5.box().left, ui.enonce3.box().right() + 3_px);
        EXPECT_EQ(ui.flech4.box().left, ui.chiffre5.box().left - 8_px);
        ExpectVisible({&ui.enonce3, &ui.chiffre5, &ui.flech4}, {&ui.chiffre4, &ui.flech3, &ui.encor_trois});

        exerciser.Click(ui.chiffre5);  // nothing entered yet
        EXPECT_EQ(ui.texte2.caption(), kNowEnter);
        exerciser.Enter(ui.flech4, c.entered);
        exerciser.Click(ui.chiffre5);
        EXPECT_EQ(ui.texte2.caption(), c.message + kGoOn);
        EXPECT_EQ(exerciser.Heard(), Names{c.right ? "2.vic" : "1.def"});
        ExpectVisible({&ui.enonce3, &ui.chiffre5, &ui.encor_trois}, {&ui.chiffre4, &ui.flech3, &ui.flech4});
        exerciser.Tap(ui.chiffre5);
        EXPECT_EQ(PuzzlesOf(exerciser), (Puzzles{1, c.right, !c.right}));
    }
}

TEST(FactorPair, OtherNumbersEndIt) {
    Exerciser exerciser({.factor_pair = {{10, 1}, {10, 1}, {10, 4}}});  // 4, and 4 is drawn again
    auto& ui = exerciser.screen.factor_pair.ui;
    EXPECT_EQ(ui.enonce3.caption(), "Dans quelle Table de Multiplication puis-je trouver 28 ?");
    exerciser.Enter(ui.flech3, 3);
    EXPECT_EQ(ui.chiffre4.caption(), " 3");
    exerciser.Click(ui.chiffre4);
    EXPECT_EQ(ui.texte2.caption(),
              "Erreur ! On peut trouver 28 dans les Tables de Multiplication par 4 et par 7 !\r"
              " 28 = 4 X 7 ! Cliquez sur Continuer pour un autre exercice.");
    EXPECT_EQ(exerciser.Heard(), Names{"1.def"});
    ExpectVisible({&ui.chiffre4, &ui.encor_trois}, {&ui.flech3, &ui.chiffre5, &ui.flech4});

    exerciser.random.Expect({{10, 2}, {10, 3}});
    exerciser.Click(ui.encor_trois);
    EXPECT_EQ(ui.enonce3.caption(), "Dans quelle Table de Multiplication puis-je trouver 30 ?");
    EXPECT_EQ(ui.chiffre4.caption(), "??");
    EXPECT_EQ(ui.flech3.value(), 3);
    EXPECT_EQ(PuzzlesOf(exerciser), (Puzzles{1, 0, 1}));
}

}  // namespace
