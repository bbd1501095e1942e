#include "learn/learner.h"

namespace {

using Draws = std::vector<ScriptedDraw>;

const Draws kMultipleOf7{kReseed, {2, 0}, {20, 0}, {14, 1}};              // 2 X 7 + 3 X 7
const Draws kNotMultipleOf7{kReseed, {2, 1}, {50, 9}, {50, 3}, {50, 4}};  // 10 + 4 refused, 10 + 5

void Showed(const MultiplePanel::Ui& ui, bool choice, bool product, bool arrows, bool go_on) {
    for (const Label* label : {&ui.oui, &ui.non}) EXPECT_EQ(label->visible(), choice);
    for (const Label* label : {&ui.chiffre2, &ui.operation2, &ui.chiffre3})
        EXPECT_EQ(label->visible(), product);
    for (const UpDown* arrow : {&ui.fleche2, &ui.fleche3}) EXPECT_EQ(arrow->visible(), arrows);
    EXPECT_EQ(ui.encore_deux.visible(), go_on);
}

TEST(Multiple, DrawsItsTerms) {
    struct Case {
        int table;
        Draws draws;
        std::string terms;
    };
    const std::vector<Case> cases{
        {7, kMultipleOf7, " 14 + 21"},
        {2, {kReseed, {2, 0}, {20, 0}, {14, 2}, {3, 2}, {3, 0}}, " 2 + 6"},  // redrawn until y < x
        {12, {kReseed, {2, 0}, {20, 19}, {14, 13}}, " 168 + 264"},
        {12, {kReseed, {2, 0}, {20, 10}, {14, 12}, {13, 11}}, " 144 + 156"},
        {7, kNotMultipleOf7, " 10 + 5"},
        {2, {kReseed, {2, 1}, {50, 0}, {50, 0}, {50, 48}, {50, 49}}, " 1 + 50"},
    };
    for (const Case& c : cases) {
        Learner learner(c.table, {.multiple = c.draws});
        const auto& ui = learner.screen.multiple.ui;
        EXPECT_EQ(ui.enonce2.caption(),
                  "La somme de" + c.terms + " donne-t-elle pour résultat un multiple de " +
                      std::to_string(c.table) + " ?\rCliquez sur OUI ou NON pour répondre.");
        Showed(ui, true, false, false, false);
    }
}

TEST(Multiple, AnswersThatEndTheQuestion) {
    struct Case {
        Draws draws;
        bool oui;
        std::string message;
        bool right;
    };
    const std::vector<Case> cases{
        {kNotMultipleOf7, false, "Vous avez raison ! 10 + 5 = 15 qui n'est pas un multiple de 7 !", true},
        {kMultipleOf7, false, "Perdu ! 14 + 21 = 35 = 5 X 7 qui est donc bien un multiple de 7 !", false},
        {kNotMultipleOf7, true, "C'est faux ! 10 + 5 = 15 qui n'est pas un multiple de 7 !", false},
    };
    for (const Case& c : cases) {
        Learner learner(7, {.multiple = c.draws});
        auto& ui = learner.screen.multiple.ui;
        learner.Click(c.oui ? ui.oui : ui.non);
        EXPECT_EQ(ui.enonce2.caption(), c.message + kGoOn);
        EXPECT_EQ(learner.Heard(), Names{c.right ? "1.vic" : "1.def"});
        Showed(ui, false, false, false, true);
        learner.random.Expect(kMultipleOf7);
        learner.Click(ui.encore_deux);
        Showed(ui, true, false, false, false);
        EXPECT_EQ(ScoreOf(learner, 7), (Score{1, c.right, !c.right}));
    }
}

TEST(Multiple, SecondStepAsksForTheProduct) {
    struct Case {
        int factor;
        int sum;
        bool right;
    };
    for (const Case& c : {Case{5, 35, true}, Case{4, 35, false}, Case{5, 28, false}}) {
        Learner learner(7, {.multiple = kMultipleOf7});
        auto& ui = learner.screen.multiple.ui;
        learner.Click(ui.oui);
        EXPECT_EQ(learner.Heard(), Names{"1.vic"});
        Showed(ui, false, true, true, false);
        EXPECT_EQ(ui.enonce2.caption(),
                  "Vous avez raison.\rEntrez vos réponses grâce aux flèches puis cliquez "
                  "sur ces réponses pour la correction.");
        EXPECT_EQ(ui.operation2.caption(), "X 7 = 14 + 21 =");
        EXPECT_EQ(ui.chiffre3.box().left, ui.operation2.box().right() + 4);
        EXPECT_EQ(ui.fleche3.box().left, ui.operation2.box().right());

        learner.Step(ui.fleche2, c.factor);
        learner.Click(ui.chiffre2);  // the sum is not answered yet
        learner.Step(ui.fleche3, c.sum / 7);
        EXPECT_EQ(ui.chiffre3.caption(), std::to_string(c.sum));
        learner.Heard();
        learner.Click(c.right ? ui.chiffre3 : ui.chiffre2);
        EXPECT_EQ(learner.Heard(), Names{c.right ? "2.vic" : "1.def"});
        EXPECT_EQ(
            ui.enonce2.caption(),
            (c.right ? "Bravo ! Les 2 opérations sont justes !" : "Erreur ! 5 X 7 = 14 + 21 = 35") + kGoOn);
        Showed(ui, false, true, false, true);
        learner.Tap(ui.chiffre2);
        learner.random.Expect(kMultipleOf7);
        learner.Click(ui.encore_deux);
        EXPECT_TRUE(learner.Heard().empty());  // both arrows are set back in silence
        EXPECT_EQ(ScoreOf(learner, 7), (Score{1, c.right, !c.right}));
    }
}

TEST(Multiple, SumArrowKeepsToMultiplesOfTheTable) {
    Learner learner(12);
    auto& ui = learner.screen.multiple.ui;
    learner.Click(ui.oui);
    learner.Step(ui.fleche3, 100);
    EXPECT_EQ(ui.chiffre3.caption(), "996");
    learner.Click(learner.screen.retour);
    learner.Choose(7);
    learner.Click(ui.oui);
    learner.Step(ui.fleche3, 1);
    EXPECT_EQ(ui.chiffre3.caption(), "7");
}

}  // namespace
