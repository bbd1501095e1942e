#include "exercises/exerciser.h"

namespace {

const Draws kMember{kReseed, {12, 3}, {11, 4}, {11, 4}};  // 4 X 6 and the table of 6
const Draws kOther{kReseed, {12, 3}, {11, 4}, {11, 3}};   // 4 X 6 and the table of 5

TEST(Membership, AnswersThatEndIt) {
    struct Case {
        Draws draws;
        bool oui;
        bool right;
        std::string message;
    };
    const std::vector<Case> cases{
        {kOther, true, false, "Erreur ! 24 ne fait pas partie de la Table de 5 !"},
        {kOther, false, true, "C'est juste ! 24 ne fait pas partie de la Table de 5 !"},
        {kMember, false, false, "Erreur ! 24 = 4 X 6 !"},
        {{kReseed, {12, 11}, {11, 10}, {11, 10}}, false, false, "Erreur ! 144 = 12 X 12 !"},
        {{kReseed, {12, 0}, {11, 0}, {11, 1}},
         false,
         true,
         "C'est juste ! 2 ne fait pas partie de la Table de 3 !"},
        {{kReseed, {12, 11}, {11, 0}, {11, 6}},
         false,
         false,
         "Erreur ! 24 = 3 X 8 !"},  // a multiple by chance
    };
    for (const Case& c : cases) {
        Exerciser exerciser({.membership = c.draws});
        auto& ui = exerciser.screen.membership.ui;
        ExpectVisible({&ui.oui, &ui.non}, {&ui.lab, &ui.lab2, &ui.chiffre2, &ui.flech1, &ui.encor_un});
        EXPECT_EQ(ui.enonce1.caption(), "Cliquez sur OUI ou NON pour répondre.");
        exerciser.Click(c.oui ? ui.oui : ui.non);
        EXPECT_EQ(ui.enonce1.caption(), c.message + kGoOn);
        EXPECT_EQ(exerciser.Heard(), Names{c.right ? "1.vic" : "1.def"});
        ExpectVisible({&ui.encor_un}, {&ui.oui, &ui.non, &ui.lab, &ui.lab2, &ui.chiffre2, &ui.flech1});
        exerciser.random.Expect({kReseed, {12, 10}, {11, 9}, {11, 10}});
        exerciser.Click(ui.encor_un);
        EXPECT_EQ(ui.chiffre1.caption(), " 121");
        EXPECT_EQ(ui.probleme1.caption(), "est-il un résultat de la Table de 12 ?");
        ExpectVisible({&ui.oui, &ui.non}, {&ui.encor_un});
        EXPECT_EQ(PuzzlesOf(exerciser), (Puzzles{1, c.right, !c.right}));
    }
}

TEST(Membership, RightOuiAsksForTheFactor) {
    for (const bool right : {true, false}) {
        Exerciser exerciser({.membership = kMember});
        auto& ui = exerciser.screen.membership.ui;
        exerciser.Click(ui.oui);
        EXPECT_EQ(exerciser.Heard(), Names{"1.vic"});
        EXPECT_EQ(ui.enonce1.caption(), kNowEnter);
        EXPECT_EQ(ui.lab.caption() + ui.chiffre2.caption() + ui.lab2.caption(), " 24 =?? X 6");
        EXPECT_EQ(ui.lab.box().right(), ui.chiffre2.box().left);
        ExpectVisible({&ui.lab, &ui.chiffre2, &ui.lab2, &ui.flech1}, {&ui.oui, &ui.non, &ui.encor_un});
        exerciser.Click(ui.chiffre2);  // nothing entered yet
        EXPECT_EQ(ui.enonce1.caption(), kNowEnter);

        exerciser.Enter(ui.flech1, right ? 4 : 6);
        exerciser.Click(ui.chiffre2);
        EXPECT_EQ(exerciser.Heard(), Names{right ? "2.vic" : "1.def"});
        EXPECT_EQ(ui.enonce1.caption(), (right ? kBravo : "Faux ! 24 = 4 X 6 !") + kGoOn);
        ExpectVisible({&ui.lab, &ui.chiffre2, &ui.lab2, &ui.encor_un}, {&ui.oui, &ui.non, &ui.flech1});
        exerciser.Tap(ui.chiffre2);

        // The next second step starts empty again.
        exerciser.random.Expect(kMember);
        exerciser.Click(ui.encor_un);
        exerciser.Click(ui.oui);
        EXPECT_EQ(ui.chiffre2.caption(), "??");
        EXPECT_EQ(ui.flech1.value(), 0);
        EXPECT_EQ(PuzzlesOf(exerciser), (Puzzles{1, right, !right}));
    }
}

}  // namespace
