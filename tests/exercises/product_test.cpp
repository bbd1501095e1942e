#include "exercises/exerciser.h"

namespace {

TEST(Product, RightAndWrongAnswers) {
    struct Case {
        Draws draws;
        std::string question;
        int entered;
        bool right;
        std::string message;
    };
    const std::string bravo = "Bravo, vous avez trouvé la bonne solution !";
    const std::vector<Case> cases{
        {{{11, 5}, {11, 6}}, " 7 X 8 =", 56, true, bravo},
        {{{11, 5}, {11, 6}}, " 7 X 8 =", 54, false, "Erreur !  7 X 8 = 56 !"},
        {{{11, 10}, {11, 10}}, " 12 X 12 =", 144, true, bravo},
        {{{11, 0}, {11, 0}}, " 2 X 2 =", 0, false, "Erreur !  2 X 2 = 4 !"},
    };
    for (const Case& c : cases) {
        Exerciser exerciser({.product = c.draws});
        auto& ui = exerciser.screen.product.ui;
        EXPECT_EQ(ui.enonce2.caption(), c.question);
        EXPECT_EQ(
            ui.texte.caption(),
            "Entrez votre réponse grâce aux flèches puis cliquez sur cette réponse pour la correction.");
        exerciser.Enter(ui.flech2, c.entered);
        EXPECT_EQ(ui.chiffre3.caption(), " " + std::to_string(c.entered));
        exerciser.Click(ui.chiffre3);
        EXPECT_EQ(ui.texte.caption(), c.message + kGoOn);
        EXPECT_EQ(exerciser.Heard(), Names{c.right ? "1.vic" : "1.def"});
        ExpectVisible({&ui.encor_deux}, {&ui.flech2});
        exerciser.random.Expect({{11, 1}, {11, 2}});
        exerciser.Click(ui.encor_deux);
        EXPECT_EQ(ui.enonce2.caption(), " 3 X 4 =");
        ExpectVisible({&ui.flech2}, {&ui.encor_deux});
        EXPECT_EQ(PuzzlesOf(exerciser), (Puzzles{1, c.right, !c.right}));
    }
}

}  // namespace
