#include "exercises/exerciser.h"

namespace {

const Draws kMember{kReseed, {12, 3}, {11, 4}, {11, 4}};  // 4 X 6 and the table of 6
const Draws kOther{kReseed, {12, 3}, {11, 4}, {11, 3}};   // 4 X 6 and the table of 5

TEST(Membership, AnswersThatEndIt) {
    struct Case {
        Draws draws;
        bool oui;
        std::string question;
        std::string message;
    };
    const std::vector<Case> cases{
        {kOther, true, " 24 5", "Erreur ! 24 ne fait pas partie de la Table de 5 !"},
        {kOther, false, " 24 5", "C'est juste ! 24 ne fait pas partie de la Table de 5 !"},
        {kMember, false, " 24 6", "Erreur ! 24 = 4 X 6 !"},
        {{kReseed, {12, 11}, {11, 10}, {11, 10}}, false, " 144 12", "Erreur ! 144 = 12 X 12 !"},
        // A multiple by chance.
        {{kReseed, {12, 11}, {11, 0}, {11, 6}}, false, " 24 8", "Erreur ! 24 = 3 X 8 !"},
    };
    for (const Case& c : cases) {
        Exerciser exerciser({.membership = c.draws});
        auto& ui = exerciser.screen.membership.ui;
        ExpectVisible({&ui.oui, &ui.non}, {&ui.lab, &ui.lab2, &ui.chiffre2, &ui.flech1, &ui.encor_un});
        const auto space = c.question.rfind(' ');
        EXPECT_EQ(ui.chiffre1.caption() + ui.probleme1.caption(), c.question.substr(0, space) +
                                                                      "est-il un résultat de la Table de" +
                                                                      c.question.substr(space) + " ?");
        exerciser.Finish(c.oui ? ui.oui : ui.non, ui.enonce1, c.message + kGoOn, ui.encor_un, {&ui.flech1});
        ExpectVisible({}, {&ui.oui, &ui.non, &ui.lab, &ui.lab2, &ui.chiffre2});
    }
}

TEST(Membership, RightOuiAsksForTheFactor) {
    for (const bool right : {true, false}) {
        Exerciser exerciser({.membership = kMember});
        auto& ui = exerciser.screen.membership.ui;
        exerciser.Click(ui.oui);
        EXPECT_EQ(exerciser.Heard(), Names{"1.vic"});
        exerciser.Click(ui.chiffre2);  // nothing entered yet
        EXPECT_EQ(ui.enonce1.caption(), kNowEnter);
        EXPECT_EQ(ui.lab.caption() + ui.chiffre2.caption() + ui.lab2.caption(), " 24 =?? X 6");
        EXPECT_EQ(ui.lab.box().right(), ui.chiffre2.box().left);
        ExpectVisible({&ui.lab, &ui.chiffre2, &ui.lab2, &ui.flech1}, {&ui.oui, &ui.non, &ui.encor_un});
        exerciser.Enter(ui.flech1, right ? 4 : 6);
        exerciser.Finish(ui.chiffre2, ui.enonce1, right ? kBravo : "Faux ! 24 = 4 X 6 !" + kGoOn, ui.encor_un,
                         {&ui.flech1});
    }
}

TEST(Membership, NextFactorIsAskedAnew) {
    Exerciser exerciser;
    auto& ui = exerciser.screen.membership.ui;
    exerciser.Click(ui.oui);
    exerciser.Enter(ui.flech1, 4);
    exerciser.Click(ui.chiffre2);
    exerciser.random.Expect(kMember);
    exerciser.Click(ui.encor_un);
    exerciser.Click(ui.oui);
    EXPECT_EQ(ui.chiffre2.caption(), "??");
    EXPECT_EQ(ui.flech1.value(), 0);
}

}  // namespace
