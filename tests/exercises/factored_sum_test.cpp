#include "exercises/exerciser.h"

namespace {

TEST(FactoredSum, BothAnswersHaveToBeRight) {
    struct Case {
        Draws draws;
        std::string question;
        int factor;
        int cofactor;
        std::string answers;
    };
    const std::vector<Case> cases{
        {SixDraws().factored_sum, " 24 + 36 = 6 X", 6, 10, " 10 = 60"},
        // A sum may have equal terms; both terms of a difference are drawn again until they differ.
        {{kReseed, kReseed, {2, 0}, {9, 8}, {12, 11}, {12, 11}}, " 132 + 132 = 11 X", 11, 24, " 24 = 264"},
        {{kReseed, kReseed, {2, 1}, {9, 0}, {12, 9}, {12, 2}}, " 30 - 9 = 3 X", 3, 7, " 7 = 21"},
        {{kReseed, kReseed, {2, 1}, {9, 1}, {12, 5}, {12, 5}, {12, 8}, {12, 8}, {12, 0}, {12, 11}},
         " 48 - 4 = 4 X",
         4,
         11,
         " 11 = 44"},
    };
    for (const Case& c : cases) {
        for (const auto& [cofactor_off, result_off] : {std::pair{0, 0}, {1, 0}, {0, 1}}) {
            Exerciser exerciser({.factored_sum = c.draws});
            auto& ui = exerciser.screen.factored_sum.ui;
            EXPECT_EQ(ui.enonce5.caption() + ui.enonce6.caption(), c.question + " =");
            exerciser.Enter(ui.flech6, c.cofactor + cofactor_off);
            exerciser.Enter(ui.flech7, c.factor * (c.cofactor + result_off));
            const bool right = cofactor_off + result_off == 0;
            exerciser.Finish(right ? ui.chiffre7 : ui.chiffre8, ui.texte4,
                             right ? kBravo : "Erreur ! " + c.question + c.answers + " !" + kGoOn,
                             ui.encor_cinq, {&ui.flech6, &ui.flech7});
        }
    }
}

TEST(FactoredSum, NeedsBothAnswers) {
    Exerciser exerciser;
    auto& ui = exerciser.screen.factored_sum.ui;
    exerciser.Enter(ui.flech7, 60);
    exerciser.Click(ui.chiffre8);
    exerciser.Click(ui.chiffre7);
    EXPECT_FALSE(ui.encor_cinq.visible());
    exerciser.Enter(ui.flech6, 10);
    exerciser.Click(ui.chiffre8);
    exerciser.random.Expect({kReseed, kReseed, {2, 0}, {9, 4}, {12, 0}, {12, 0}});
    exerciser.Click(ui.encor_cinq);
    exerciser.Step(ui.flech6, 1);
    exerciser.Click(ui.chiffre7);
    exerciser.Step(ui.flech7, 1);
    EXPECT_EQ(ui.chiffre8.caption(), " 7");  // in steps of the new factor
    exerciser.ExpectPuzzles(1, 1, 0);
}

}  // namespace
