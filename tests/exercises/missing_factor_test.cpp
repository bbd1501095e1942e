#include "exercises/exerciser.h"

namespace {

TEST(MissingFactor, RightAndWrongAnswers) {
    struct Case {
        Draws draws;
        std::string question;
        int entered;
        bool right;
        std::string message;
    };
    const std::vector<Case> cases{
        {{{10, 5}, {10, 2}}, "X 4 = 28", 7, true, kBravo},
        {{{10, 5}, {10, 2}}, "X 4 = 28", 4, false, "Erreur ! 7 X 4 = 28 !"},
        {{{10, 9}, {10, 0}}, "X 2 = 22", 11, true, kBravo},
        {{{10, 0}, {10, 9}}, "X 11 = 22", 12, false, "Erreur ! 2 X 11 = 22 !"},
    };
    for (const Case& c : cases) {
        Exerciser exerciser({.missing_factor = c.draws});
        auto& ui = exerciser.screen.missing_factor.ui;
        EXPECT_EQ(ui.enonce4.caption(), c.question);
        EXPECT_EQ(ui.texte3.caption(), kEnterOnTwoLines);
        exerciser.Enter(ui.flech5, c.entered);
        EXPECT_EQ(ui.chiffre6.caption(), " " + std::to_string(c.entered));
        exerciser.Click(ui.chiffre6);
        EXPECT_EQ(ui.texte3.caption(), c.message + kGoOn);
        EXPECT_EQ(exerciser.Heard(), Names{c.right ? "1.vic" : "1.def"});
        ExpectVisible({&ui.encor_quatre}, {&ui.flech5});
        exerciser.random.Expect({{10, 0}, {10, 1}});
        exerciser.Click(ui.encor_quatre);
        EXPECT_EQ(ui.enonce4.caption(), "X 3 = 6");
        EXPECT_EQ(ui.texte3.caption(), kEnterOnTwoLines);
        ExpectVisible({&ui.flech5}, {&ui.encor_quatre});
        EXPECT_EQ(PuzzlesOf(exerciser), (Puzzles{1, c.right, !c.right}));
    }
}

}  // namespace
