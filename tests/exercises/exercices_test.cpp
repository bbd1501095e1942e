#include "exercises/exercices.h"

#include "exercises/exerciser.h"

namespace {

// A value entered with an arrow, a label clicked, or both.
struct Move {
    const UpDown* arrow;
    int value;
    const Label* clicked;
};

// One exercise, as far as all six are alike.
struct Area {
    Rect place;  // between the dividing lines
    const Label& message;
    const Label& encor;
    Draws again;
    std::vector<Move> right;
    std::vector<Move> wrong;

    bool Holds(const Control& control) const { return place.United(control.Painted()) == place; }
};

// The six exercises, with the answers to what SixDraws draws.
std::vector<Area> Areas(const Exercices& screen) {
    const SixDraws draws;
    const auto& one = screen.membership.ui;
    const auto& two = screen.product.ui;
    const auto& three = screen.factor_pair.ui;
    const auto& four = screen.missing_factor.ui;
    const auto& five = screen.factored_sum.ui;
    const auto& six = screen.note_factor.ui;
    return {
        {{0, 3795, 9600, 1200},
         one.enonce1,
         one.encor_un,
         draws.membership,
         {{nullptr, 0, &one.oui}, {&one.flech1, 4, &one.chiffre2}},
         {{nullptr, 0, &one.non}}},
        {{4815, 0, 4785, 2325},
         two.texte,
         two.encor_deux,
         draws.product,
         {{&two.flech2, 56, &two.chiffre3}},
         {{&two.flech2, 54, &two.chiffre3}}},
        {{0, 2355, 9600, 1410},
         three.texte2,
         three.encor_trois,
         draws.factor_pair,
         {{&three.flech3, 4, &three.chiffre4}, {&three.flech4, 6, &three.chiffre5}},
         {{&three.flech3, 5, &three.chiffre4}}},
        {{0, 0, 4785, 2325},
         four.texte3,
         four.encor_quatre,
         draws.missing_factor,
         {{&four.flech5, 7, &four.chiffre6}},
         {{&four.flech5, 8, &four.chiffre6}}},
        {{4815, 5025, 4785, 1725},
         five.texte4,
         five.encor_cinq,
         draws.factored_sum,
         {{&five.flech6, 10, nullptr}, {&five.flech7, 60, &five.chiffre8}},
         {{&five.flech6, 9, nullptr}, {&five.flech7, 60, &five.chiffre8}}},
        {{0, 5025, 4785, 2175},
         six.texte5,
         six.encor_six,
         draws.note_factor,
         {{&six.flech8, 4, &six.chiffre9}},
         {{&six.flech8, 5, &six.chiffre9}}},
    };
}

// Answers up to the last click, and tells where that one goes.
const Label& Answer(Exerciser& pupil, const std::vector<Move>& moves) {
    for (const Move& move : moves) {
        if (move.arrow) pupil.Enter(*move.arrow, move.value);
        if (move.clicked && &move != &moves.back()) pupil.Click(*move.clicked);
    }
    return *moves.back().clicked;
}

// The visible controls, in the area or outside of it.
Names Shown(const Form& form, const Area& area, bool inside) {
    Names shown;
    for (const Control* control : form.controls()) {
        if (!control->visible() || area.Holds(*control) != inside) continue;
        const auto* label = dynamic_cast<const Label*>(control);
        const auto* arrow = dynamic_cast<const UpDown*>(control);
        shown.push_back(std::to_string(control->box().left) + " " + (label ? label->caption() : "") +
                        (arrow ? std::to_string(arrow->value()) : ""));
    }
    return shown;
}

TEST(Exercices, ExercisesDoNotTouchOneAnother) {
    for (std::size_t i = 0; i < 6; ++i) {
        Exerciser pupil;
        const std::vector<Area> areas = Areas(pupil.screen);
        for (const Area& other : areas) {
            if (&other != &areas[i]) Answer(pupil, other.right);
        }
        const auto shown = [&](bool inside) { return Shown(pupil.screen.form, areas[i], inside); };
        const Names asked = shown(true);
        const Names others = shown(false);
        pupil.Click(Answer(pupil, areas[i].wrong));
        EXPECT_NE(shown(true), asked);
        pupil.random.Expect(areas[i].again);
        pupil.Click(areas[i].encor);
        EXPECT_EQ(shown(true), asked);
        EXPECT_EQ(shown(false), others);
    }
}

TEST(Exercices, EveryShowingAsksSixFreshQuestions) {
    Exerciser pupil;
    const Names asked = pupil.Seen();
    const Names instructions{
        "Cliquez sur OUI ou NON pour répondre.",
        "Entrez votre réponse grâce aux flèches puis cliquez sur cette réponse pour la correction.",
        "Entrez votre réponse grâce aux flèches puis\rcliquez sur cette réponse pour la correction.",
        "Entrez votre réponse grâce aux flèches puis\rcliquez sur cette réponse pour la correction.",
        "Entrez vos réponses grâce aux flèches puis cliquez sur ces réponses pour la correction.",
        "Sachant que DO=3, RE=4 ... LA=8, SI=9, entrez votre réponse grâce aux flèches puis cliquez sur "
        "cette réponse pour la correction."};
    const std::vector<Area> areas = Areas(pupil.screen);
    for (std::size_t i = 0; i < 6; ++i) {
        EXPECT_EQ(areas[i].message.caption(), instructions[i]);
        pupil.Click(Answer(pupil, areas[i].right));
    }
    pupil.Heard();
    pupil.Click(pupil.screen.fin);
    EXPECT_EQ(pupil.Heard(), Names{"3"});
    EXPECT_TRUE(pupil.Sees(pupil.screens.depart.form));
    pupil.Open({}, pupil.screens.depart.Label3);
    EXPECT_EQ(pupil.Seen(), asked);
    // "NON" and the first note are answers as they stand; elsewhere nothing is entered.
    for (const Area& area : areas) pupil.Click(*area.wrong.back().clicked);
    pupil.ExpectPuzzles(8, 6, 2);
}

TEST(Exercices, ResettingAnArrowUsesUpAClickUnheard) {
    Exerciser pupil;
    const auto& ui = pupil.screen.product.ui;
    pupil.Step(ui.flech2, 2);
    EXPECT_EQ(pupil.Heard(), (Names{"1", "2"}));
    pupil.Click(ui.chiffre3);
    pupil.random.Expect(SixDraws().product);
    pupil.Click(ui.encor_deux);
    EXPECT_EQ(pupil.Heard(), Names{"1.def"});
    pupil.Step(ui.flech2, 1);
    EXPECT_EQ(pupil.Heard(), Names{"4"});
}

TEST(Exercices, ArrowsStopAtTheirLimits) {
    Exerciser pupil;
    const Exercices& screen = pupil.screen;
    const auto limits = [&pupil](const UpDown& arrow, const Label& answer) {
        pupil.Step(arrow, 501);
        const std::string most = answer.caption();
        pupil.Step(arrow, -501);
        return answer.caption() + most;
    };
    pupil.Click(screen.membership.ui.oui);
    EXPECT_EQ(limits(screen.membership.ui.flech1, screen.membership.ui.chiffre2), " 0 200");
    EXPECT_EQ(limits(screen.product.ui.flech2, screen.product.ui.chiffre3), " 0 144");
    EXPECT_EQ(limits(screen.factor_pair.ui.flech3, screen.factor_pair.ui.chiffre4), " 3 12");
    pupil.Click(screen.factor_pair.ui.chiffre4);
    EXPECT_EQ(limits(screen.factor_pair.ui.flech4, screen.factor_pair.ui.chiffre5), " 0 100");
    EXPECT_EQ(limits(screen.missing_factor.ui.flech5, screen.missing_factor.ui.chiffre6), " 0 12");
    EXPECT_EQ(limits(screen.factored_sum.ui.flech6, screen.factored_sum.ui.chiffre7), " 0 100");
    EXPECT_EQ(limits(screen.factored_sum.ui.flech7, screen.factored_sum.ui.chiffre8), " 0 498");
    EXPECT_EQ(limits(screen.note_factor.ui.flech8, screen.note_factor.ui.chiffre9), "DOSI");
}

// The first exercise with a number that is not in the table.
const SixDraws kNoMember{.membership = {kReseed, {12, 3}, {11, 4}, {11, 3}}};

Area NoMemberArea(const Exercices& screen) {
    Area area = Areas(screen)[0];
    area.right = {{nullptr, 0, &screen.membership.ui.non}};
    area.wrong = {{nullptr, 0, &screen.membership.ui.oui}};
    return area;
}

// Runs into a full counter, and tells what was done before: heard (h), told (t), "Continuer" shown (c), and
// how many other counters were raised.
std::string DoneBefore(std::int16_t Counters::*full, const std::string& name, std::size_t exercise,
                       bool right) {
    Counters counters;
    counters.*full = 32767;
    Exerciser pupil(exercise < 6 ? SixDraws() : kNoMember, counters);
    const Area area = exercise < 6 ? Areas(pupil.screen)[exercise] : NoMemberArea(pupil.screen);
    const Label& last = Answer(pupil, right ? area.right : area.wrong);
    const std::string before = area.message.caption();
    pupil.Heard();
    pupil.ClickIntoFull(last, name);
    std::string done;
    if (!pupil.Heard().empty()) done += 'h';
    if (area.message.caption() != before) done += 't';
    if (area.encor.visible()) done += 'c';
    pupil.Click(pupil.screen.fin);
    const Counters saved = pupil.Quit();
    return done + std::to_string(saved.PuzzleCount + saved.PuzzleRight + saved.PuzzleWrong - 32767);
}

// The order of what a correction does, seen by what a counter's overflow leaves undone.
TEST(Exercices, FullCounterStopsTheRunAtItsPoint) {
    struct Case {
        std::string full_right, full_wrong, full_count_right, full_count_wrong;
    };
    const std::vector<Case> cases{{"0", "htc1", "htc1", "0"},   {"c0", "c0", "htc1", "htc1"},
                                  {"0", "0", "ht1", "1"},       {"ht0", "0", "ht1", "ht1"},
                                  {"c0", "c0", "htc1", "htc1"}, {"htc0", "c0", "htc1", "htc1"},
                                  {"htc1", "0", "0", "htc1"}};
    for (std::size_t i = 0; i < cases.size(); ++i) {
        SCOPED_TRACE(i + 1);
        EXPECT_EQ(DoneBefore(&Counters::PuzzleRight, "PuzzleRight", i, true), cases[i].full_right);
        EXPECT_EQ(DoneBefore(&Counters::PuzzleWrong, "PuzzleWrong", i, false), cases[i].full_wrong);
        EXPECT_EQ(DoneBefore(&Counters::PuzzleCount, "PuzzleCount", i, true), cases[i].full_count_right);
        EXPECT_EQ(DoneBefore(&Counters::PuzzleCount, "PuzzleCount", i, false), cases[i].full_count_wrong);
    }
}

}  // namespace
