#include "exercises/exerciser.h"

namespace {

struct FactoredSumCase {
    Draws draws;
    std::string question;
    int factor;
    int cofactor;
    std::string equation;
};

const std::vector<FactoredSumCase> kCases{
    {{kReseed, kReseed, {2, 0}, {9, 3}, {12, 3}, {12, 5}}, " 24 + 36 = 6 X", 6, 10, " 24 + 36 = 6 X 10 = 60"},
    {{kReseed, kReseed, {2, 0}, {9, 8}, {12, 11}, {12, 11}},  // a sum may have equal terms
     " 132 + 132 = 11 X",
     11,
     24,
     " 132 + 132 = 11 X 24 = 264"},
    {{kReseed, kReseed, {2, 1}, {9, 0}, {12, 9}, {12, 2}}, " 30 - 9 = 3 X", 3, 7, " 30 - 9 = 3 X 7 = 21"},
    {{kReseed, kReseed, {2, 1}, {9, 1}, {12, 0}, {12, 11}}, " 48 - 4 = 4 X", 4, 11, " 48 - 4 = 4 X 11 = 44"},
    {{kReseed, kReseed, {2, 1}, {9, 1}, {12, 5}, {12, 5}, {12, 0}, {12, 0}, {12, 1}, {12, 0}},
     " 8 - 4 = 4 X",
     4,
     1,
     " 8 - 4 = 4 X 1 = 4"},  // both are drawn again until they differ
};

TEST(FactoredSum, BothAnswersHaveToBeRight) {
    for (const FactoredSumCase& c : kCases) {
        for (const auto& [cofactor_off, result_off] : {std::pair{0, 0}, {1, 0}, {0, 1}}) {
            Exerciser exerciser({.factored_sum = c.draws});
            auto& ui = exerciser.screen.factored_sum.ui;
            EXPECT_EQ(ui.enonce5.caption() + ui.enonce6.caption(), c.question + " =");
            EXPECT_EQ(
                ui.texte4.caption(),
                "Entrez vos réponses grâce aux flèches puis cliquez sur ces réponses pour la correction.");
            exerciser.Enter(ui.flech6, c.cofactor + cofactor_off);
            exerciser.Enter(ui.flech7, c.factor * (c.cofactor + result_off));
            const bool right = cofactor_off + result_off == 0;
            exerciser.Click(right ? ui.chiffre7 : ui.chiffre8);
            EXPECT_EQ(ui.texte4.caption(), (right ? kBravo : "Erreur ! " + c.equation + " !") + kGoOn);
            EXPECT_EQ(exerciser.Heard(), Names{right ? "1.vic" : "1.def"});
            ExpectVisible({&ui.encor_cinq}, {&ui.flech6, &ui.flech7});
            exerciser.Tap(ui.chiffre8);
            EXPECT_EQ(PuzzlesOf(exerciser), (Puzzles{1, right, !right}));
        }
    }
}

TEST(FactoredSum, NeedsBothAnswersAndKeepsToMultiples) {
    Exerciser exerciser;
    auto& ui = exerciser.screen.factored_sum.ui;
    exerciser.Step(ui.flech7, 200);
    EXPECT_EQ(ui.chiffre8.caption(), " 498");
    for (const Label* answer : {&ui.chiffre7, &ui.chiffre8}) exerciser.Click(*answer);
    EXPECT_FALSE(ui.encor_cinq.visible());
    exerciser.Enter(ui.flech6, 0);
    exerciser.Click(ui.chiffre8);

    exerciser.random.Expect({kReseed, kReseed, {2, 0}, {9, 4}, {12, 0}, {12, 0}});
    exerciser.Click(ui.encor_cinq);
    EXPECT_EQ(ui.chiffre7.caption() + ui.chiffre8.caption(), "????");
    ExpectVisible({&ui.flech6, &ui.flech7}, {&ui.encor_cinq});
    exerciser.Step(ui.flech7, 1);
    EXPECT_EQ(ui.chiffre8.caption(), " 7");
    exerciser.Click(ui.chiffre8);  // the other one is empty
    EXPECT_EQ(PuzzlesOf(exerciser), (Puzzles{1, 0, 1}));
}

}  // namespace
