#include "learn/learner.h"

namespace {

TEST(LetterCode, RightAndWrongLetters) {
    struct Case {
        int drawn;
        int steps;
        std::string message;
    };
    const std::vector<Case> cases{
        {4, 4, "Bravo ! E = 5 donc E X 7 = 5 X 7 = 35"},
        {4, 3, "Faux ! E = 5 donc E X 7 = 5 X 7 = 35"},
        {0, 0, "Bravo ! A = 1 donc A X 7 = 1 X 7 = 7"},  // the first letter is an answer as it stands
        {25, 30, "Bravo ! Z = 26 donc Z X 7 = 26 X 7 = 182"},
    };
    for (const Case& c : cases) {
        Learner learner(7, {.letter = {{26, c.drawn}}});
        auto& ui = learner.screen.letter_code.ui;
        EXPECT_EQ(ui.enonce3.caption(),
                  "Sachant que A=1, B=2, C=3 ... Y=25, Z=26,\rentrez votre réponse grâce aux flèches puis "
                  "cliquez sur cette réponse pour la correction.");
        EXPECT_EQ(ui.operation3.caption(), "X 7 = " + std::to_string(7 * (c.drawn + 1)));
        EXPECT_EQ(ui.chiffre4.caption(), "A");
        learner.Step(ui.fleche4, c.steps);
        learner.Click(ui.chiffre4);
        EXPECT_EQ(ui.enonce3.caption(), c.message + kGoOn);
        const bool right = c.message.starts_with("Bravo");
        EXPECT_EQ(learner.Heard().back(), right ? "1.vic" : "1.def");
        EXPECT_FALSE(ui.fleche4.visible());
        learner.Tap(ui.chiffre4);

        learner.random.Expect({{26, 1}});  // no reseeding
        learner.Click(ui.encore_trois);
        EXPECT_TRUE(learner.Heard().empty());  // the arrow is set back in silence
        EXPECT_FALSE(ui.encore_trois.visible());
        EXPECT_EQ(ui.operation3.caption(), "X 7 = 14");
        EXPECT_EQ(ui.chiffre4.caption(), "A");
        EXPECT_TRUE(ui.fleche4.visible());
        EXPECT_EQ(ScoreOf(learner, 7), (Score{1, right, !right}));
    }
}

}  // namespace
