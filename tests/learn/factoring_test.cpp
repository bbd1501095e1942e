#include "learn/learner.h"

namespace {

struct FactoringCase {
    int table;
    std::vector<ScriptedDraw> draws;
    std::string question;
    int answer;
    std::string equation;  // as a wrong answer is corrected
};

const std::vector<FactoringCase> kCases{
    {6, {kReseed, {2, 0}, {6, 2}, {6, 3}}, " 18 + 24 =  6 X", 7, "Erreur !  18 + 24 =  6 X 7 = 42"},
    {12, {kReseed, {2, 0}, {6, 5}, {6, 5}}, " 72 + 72 =  12 X", 12, "Erreur !  72 + 72 =  12 X 12 = 144"},
    {7, {kReseed, {2, 1}, {12, 8}, {12, 3}}, " 63 - 28 =  7 X", 5, "Erreur !  63 - 28 =  7 X 5 = 35"},
    {7, {kReseed, {2, 1}, {12, 0}, {12, 11}}, " 84 - 7 =  7 X", 11, "Erreur !  84 - 7 =  7 X 11 = 77"},
    {2, {kReseed, {2, 1}, {12, 4}, {12, 4}}, " 10 - 10 =  2 X", 0, "Erreur !  10 - 10 =  2 X 0 = 0"},
};

TEST(Factoring, RightAndWrongAnswersToEachKind) {
    for (const FactoringCase& c : kCases) {
        for (const bool right : {true, false}) {
            Learner learner(c.table, {.factoring = c.draws});
            auto& ui = learner.screen.factoring.ui;
            EXPECT_EQ(ui.enonce.caption(), c.question);
            EXPECT_EQ(
                ui.label_table1.caption(),
                "Entrez votre réponse grâce aux flèches puis cliquez sur cette réponse pour la correction.");
            learner.Turn(ui.fleche, c.answer + 1);
            if (right) learner.Turn(ui.fleche, c.answer);
            EXPECT_EQ(ui.chiffre.caption(), std::to_string(c.answer + !right));
            learner.Click(ui.chiffre);
            EXPECT_EQ(ui.label_table1.caption(),
                      (right ? "Gagné ! Vous avez trouvé le bon résultat !" : c.equation) + kGoOn);
            EXPECT_EQ(learner.Heard().back(), right ? "1.vic" : "1.def");
            EXPECT_FALSE(ui.fleche.visible());
            learner.Tap(ui.chiffre);  // answered already
            EXPECT_TRUE(learner.Heard().empty());
            EXPECT_EQ(ScoreOf(learner, c.table), (Score{1, right, !right}));
        }
    }
}

TEST(Factoring, UnansweredIsIgnoredAndContinueAsksAnew) {
    Learner learner(3);
    auto& ui = learner.screen.factoring.ui;
    learner.Click(ui.chiffre);
    EXPECT_TRUE(learner.Heard().empty());
    EXPECT_FALSE(ui.encore_un.visible());

    learner.Turn(ui.fleche, 2);
    learner.Click(ui.chiffre);
    learner.random.Expect({kReseed, {2, 1}, {12, 11}, {12, 10}});
    learner.Click(ui.encore_un);
    EXPECT_EQ(ui.enonce.caption(), " 36 - 33 =  3 X");
    EXPECT_EQ(ui.chiffre.caption(), "??");
    EXPECT_TRUE(ui.fleche.visible());
    EXPECT_FALSE(ui.encore_un.visible());
    // Setting the arrow back used up the third click of the cycle, unheard.
    EXPECT_EQ(learner.Heard(), (Names{"1", "2", "1.vic"}));
    learner.Step(ui.fleche, 1);
    EXPECT_EQ(learner.Heard(), Names{"4"});
    EXPECT_EQ(ScoreOf(learner, 3), (Score{1, 1, 0}));
}

TEST(Factoring, ArrowStopsAtItsLimits) {
    Learner learner(2);
    auto& ui = learner.screen.factoring.ui;
    learner.Step(ui.fleche, -1);
    EXPECT_EQ(ui.chiffre.caption(), "??");
    learner.Step(ui.fleche, 60);
    EXPECT_EQ(ui.chiffre.caption(), "50");
    EXPECT_EQ(learner.Heard().size(), 50U);
}

}  // namespace
