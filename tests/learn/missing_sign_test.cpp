#include "learn/learner.h"

namespace {

TEST(MissingSign, EachSignRightAndWrong) {
    struct Case {
        int table;
        std::vector<ScriptedDraw> draws;
        std::string first;
        std::string sign;
        std::string rest;
    };
    const std::vector<Case> cases{
        {7, {kReseed, {12, 4}, {12, 2}, {3, 0}}, " 35", "+", " 21 = 8 X 7 = 56"},
        {7, {kReseed, {12, 4}, {12, 2}, {3, 1}}, " 35", "-", " 21 = 2 X 7 = 14"},
        {12, {kReseed, {12, 11}, {12, 10}, {3, 2}}, " 144", "X", " 132 = 1584 X 12 = 19008"},
        // Both are drawn again until the second is the smaller.
        {2,
         {kReseed, {12, 3}, {12, 3}, {12, 0}, {12, 5}, {12, 1}, {12, 0}, {3, 0}},
         " 4",
         "+",
         " 2 = 3 X 2 = 6"},
    };
    for (const Case& c : cases) {
        for (int chosen = 0; chosen < 3; ++chosen) {
            Learner learner(c.table, {.sign = c.draws});
            auto& ui = learner.screen.missing_sign.ui;
            EXPECT_EQ(ui.enonce4.caption(),
                      "Entrez le signe grâce aux flèches puis cliquez sur ce signe pour la correction.");
            EXPECT_EQ(ui.chiffre5.caption(), c.first);
            EXPECT_EQ(ui.operation4.caption(), c.rest);
            learner.Click(ui.signe);  // still "?"
            EXPECT_TRUE(learner.Heard().empty());
            learner.Step(ui.fleche5, 1);  // plus is chosen by moving away and back
            learner.Turn(ui.fleche5, chosen);
            EXPECT_EQ(ui.signe.caption(), (Names{"+", "-", "X"}[static_cast<std::size_t>(chosen)]));
            const bool right = ui.signe.caption() == c.sign;
            learner.Click(ui.signe);
            EXPECT_EQ(ui.enonce4.caption(),
                      (right ? "Gagné ! " : "Perdu ! ") + c.first + " " + c.sign + " " + c.rest + kGoOn);
            EXPECT_EQ(learner.Heard().back(), right ? "1.vic" : "1.def");
            EXPECT_FALSE(ui.fleche5.visible());
            learner.Tap(ui.signe);
            learner.random.Expect({kReseed, {12, 1}, {12, 0}, {3, 0}});
            learner.Click(ui.encore_quatre);
            EXPECT_TRUE(learner.Heard().empty());  // the arrow is set back in silence
            EXPECT_FALSE(ui.encore_quatre.visible());
            EXPECT_TRUE(ui.fleche5.visible());
            EXPECT_EQ(ui.signe.caption(), "?");
            EXPECT_EQ(ScoreOf(learner, c.table), (Score{1, right, !right}));
        }
    }
}

}  // namespace
