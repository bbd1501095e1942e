#include "exercises/exercices.h"

#include "exercises/exerciser.h"
#include "support/run_time_error.h"

namespace {

// One exercise, as far as all six are alike.
struct Area {
    const char* begin;  // its controls in memory
    const char* end;
    const Label& message;
    const Label& encor;
    Draws again;
    // Enters an answer up to its last click, and tells where that one goes.
    std::function<const Label&(bool right)> enter;

    bool Owns(const Control* control) const {
        const auto* at = reinterpret_cast<const char*>(control);
        return std::less_equal<>()(begin, at) && std::less<>()(at, end);
    }
};

template <class Ui>
Area MakeArea(const Ui& ui, const Label& message, const Label& encor, const Draws& again,
              std::function<const Label&(bool)> enter) {
    const auto* begin = reinterpret_cast<const char*>(&ui);
    return {begin, begin + sizeof(ui), message, encor, again, std::move(enter)};
}

// The six exercises as SixDraws draws them.
std::vector<Area> Areas(Exerciser& pupil) {
    const SixDraws draws;
    auto& one = pupil.screen.membership.ui;
    auto& two = pupil.screen.product.ui;
    auto& three = pupil.screen.factor_pair.ui;
    auto& four = pupil.screen.missing_factor.ui;
    auto& five = pupil.screen.factored_sum.ui;
    auto& six = pupil.screen.note_factor.ui;
    return {MakeArea(one, one.enonce1, one.encor_un, draws.membership,
                     [&](bool right) -> const Label& {
                         if (!right) return one.non;
                         pupil.Click(one.oui);
                         pupil.Enter(one.flech1, 4);
                         return one.chiffre2;
                     }),
            MakeArea(two, two.texte, two.encor_deux, draws.product,
                     [&](bool right) -> const Label& {
                         pupil.Enter(two.flech2, right ? 56 : 54);
                         return two.chiffre3;
                     }),
            MakeArea(three, three.texte2, three.encor_trois, draws.factor_pair,
                     [&](bool right) -> const Label& {
                         pupil.Enter(three.flech3, right ? 4 : 5);
                         if (!right) return three.chiffre4;
                         pupil.Click(three.chiffre4);
                         pupil.Enter(three.flech4, 6);
                         return three.chiffre5;
                     }),
            MakeArea(four, four.texte3, four.encor_quatre, draws.missing_factor,
                     [&](bool right) -> const Label& {
                         pupil.Enter(four.flech5, right ? 7 : 8);
                         return four.chiffre6;
                     }),
            MakeArea(five, five.texte4, five.encor_cinq, draws.factored_sum,
                     [&](bool right) -> const Label& {
                         pupil.Enter(five.flech6, right ? 10 : 9);
                         pupil.Enter(five.flech7, 60);
                         return five.chiffre8;
                     }),
            MakeArea(six, six.texte5, six.encor_six, draws.note_factor, [&](bool right) -> const Label& {
                pupil.Enter(six.flech8, right ? 4 : 5);
                return six.chiffre9;
            })};
}

// All that can be seen of the controls that the area does not own.
Names SeenOutside(const Area& area, const Form& form) {
    Names seen;
    for (const Control* control : form.controls()) {
        if (area.Owns(control)) continue;
        const auto* label = dynamic_cast<const Label*>(control);
        const auto* arrow = dynamic_cast<const UpDown*>(control);
        seen.push_back((control->visible() ? "shown " : "hidden ") + std::to_string(control->box().left) +
                       " " + (label ? label->caption() : "") + (arrow ? std::to_string(arrow->value()) : ""));
    }
    return seen;
}

TEST(Exercices, ExercisesDoNotTouchOneAnother) {
    for (std::size_t i = 0; i < 6; ++i) {
        Exerciser pupil;
        const std::vector<Area> areas = Areas(pupil);
        for (std::size_t j = 0; j < 6; ++j) {
            if (j != i) areas[j].enter(true);  // the others stand amid an answer
        }
        const Names others = SeenOutside(areas[i], pupil.screen.form);
        const std::string asked = areas[i].message.caption();
        pupil.Click(areas[i].enter(false));
        EXPECT_NE(areas[i].message.caption(), asked);
        pupil.random.Expect(areas[i].again);
        pupil.Click(areas[i].encor);
        EXPECT_EQ(areas[i].message.caption(), asked);
        EXPECT_EQ(SeenOutside(areas[i], pupil.screen.form), others);
    }
}

TEST(Exercices, EveryShowingAsksSixFreshQuestions) {
    Exerciser pupil;
    const Names asked = pupil.Seen();
    for (const Area& area : Areas(pupil)) pupil.Click(area.enter(true));
    pupil.Heard();
    pupil.Click(pupil.screen.fin);
    EXPECT_EQ(pupil.Heard(), Names{"3"});
    EXPECT_TRUE(pupil.Sees(pupil.screens.depart.form));
    pupil.Open();
    EXPECT_EQ(pupil.Seen(), asked);
    EXPECT_EQ(PuzzlesOf(pupil), (Puzzles{6, 6, 0}));
}

TEST(Exercices, UnansweredQuestionsIgnoreClicks) {
    Exerciser pupil;
    const Names asked = pupil.Seen();
    auto& screen = pupil.screen;
    for (const Label* answer : {&screen.product.ui.chiffre3, &screen.factor_pair.ui.chiffre4,
                                &screen.missing_factor.ui.chiffre6, &screen.factored_sum.ui.chiffre7}) {
        pupil.Click(*answer);
    }
    EXPECT_EQ(pupil.Seen(), asked);
    EXPECT_TRUE(pupil.Heard().empty());
    EXPECT_EQ(PuzzlesOf(pupil), (Puzzles{0, 0, 0}));
}

TEST(Exercices, ResettingAnArrowUsesUpAClickUnheard) {
    Exerciser pupil;
    auto& ui = pupil.screen.product.ui;
    pupil.Step(ui.flech2, 2);
    EXPECT_EQ(pupil.Heard(), (Names{"1", "2"}));
    pupil.Click(ui.chiffre3);
    pupil.random.Expect(SixDraws().product);
    pupil.Click(ui.encor_deux);
    EXPECT_EQ(pupil.Heard(), Names{"1.def"});
    pupil.Step(ui.flech2, 1);
    EXPECT_EQ(pupil.Heard(), Names{"4"});
    pupil.Click(pupil.screen.fin);
    pupil.Open();
    pupil.Step(ui.flech2, 1);
    EXPECT_EQ(pupil.Heard(), Names{"6"});
}

TEST(Exercices, ArrowsStopAtTheirLimits) {
    Exerciser pupil;
    auto& screen = pupil.screen;
    pupil.Click(screen.membership.ui.oui);
    struct Case {
        const UpDown& arrow;
        const Label& answer;
        std::string least;
        std::string most;
    };
    const auto check = [&pupil](const Case& c) {
        pupil.Step(c.arrow, -1);
        EXPECT_EQ(c.answer.caption(), c.least == "DO" ? "DO" : "??");
        pupil.Step(c.arrow, 501);
        EXPECT_EQ(c.answer.caption(), c.most);
        pupil.Step(c.arrow, -501);
        EXPECT_EQ(c.answer.caption(), c.least);
    };
    check({screen.membership.ui.flech1, screen.membership.ui.chiffre2, " 0", " 200"});
    check({screen.product.ui.flech2, screen.product.ui.chiffre3, " 0", " 144"});
    check({screen.factor_pair.ui.flech3, screen.factor_pair.ui.chiffre4, " 3", " 12"});
    pupil.Click(screen.factor_pair.ui.chiffre4);
    check({screen.factor_pair.ui.flech4, screen.factor_pair.ui.chiffre5, " 0", " 100"});
    check({screen.missing_factor.ui.flech5, screen.missing_factor.ui.chiffre6, " 0", " 12"});
    check({screen.factored_sum.ui.flech6, screen.factored_sum.ui.chiffre7, " 0", " 100"});
    check({screen.factored_sum.ui.flech7, screen.factored_sum.ui.chiffre8, " 0", " 498"});
    check({screen.note_factor.ui.flech8, screen.note_factor.ui.chiffre9, "DO", "SI"});
}

// Runs into a full counter, and tells what was done before: heard (h), told (t), "Continuer" shown (c).
std::string DoneBefore(std::int16_t Counters::*full, const char* name, std::size_t exercise, bool right) {
    Counters counters;
    counters.*full = 32767;
    Exerciser pupil({}, counters);
    const Area area = Areas(pupil)[exercise];
    const Label& last = area.enter(right);
    const std::string before = area.message.caption();
    pupil.Heard();
    try {
        pupil.Click(last);
        ADD_FAILURE() << "a full counter was raised";
    } catch (const RunTimeError& error) {
        EXPECT_EQ(error.what(), "Dépassement de capacité du compteur « " + std::string(name) + " ».");
    }
    return std::string(pupil.Heard().empty() ? "-" : "h") + (area.message.caption() == before ? "-" : "t") +
           (area.encor.visible() ? "c" : "-");
}

// The order of what a correction does, seen by what a counter's overflow leaves undone.
TEST(Exercices, FullCounterStopsTheRunAtItsPoint) {
    struct Case {
        std::string full_right, full_wrong, full_count_right, full_count_wrong;
    };
    const std::array<Case, 6> cases{{{"---", "htc", "htc", "---"},
                                     {"--c", "--c", "htc", "htc"},
                                     {"---", "---", "ht-", "---"},
                                     {"ht-", "---", "ht-", "ht-"},
                                     {"--c", "--c", "htc", "htc"},
                                     {"htc", "--c", "htc", "htc"}}};
    for (std::size_t i = 0; i < cases.size(); ++i) {
        SCOPED_TRACE(i + 1);
        EXPECT_EQ(DoneBefore(&Counters::PuzzleRight, "PuzzleRight", i, true), cases[i].full_right);
        EXPECT_EQ(DoneBefore(&Counters::PuzzleWrong, "PuzzleWrong", i, false), cases[i].full_wrong);
        EXPECT_EQ(DoneBefore(&Counters::PuzzleCount, "PuzzleCount", i, true), cases[i].full_count_right);
        EXPECT_EQ(DoneBefore(&Counters::PuzzleCount, "PuzzleCount", i, false), cases[i].full_count_wrong);
    }
}

// Nothing covers anything, nothing leaves the page, and every text can be read.
void ExpectLegible(const Form& form) {
    const std::vector<Control*>& controls = form.controls();
    for (std::size_t i = 0; i < controls.size(); ++i) {
        if (!controls[i]->visible()) continue;
        const Rect box = controls[i]->Painted();
        EXPECT_EQ(box.United({0, 0, kPageWidth, kPageHeight}), (Rect{0, 0, kPageWidth, kPageHeight}));
        const auto* label = dynamic_cast<const Label*>(controls[i]);
        if (label) {
            EXPECT_LE(label->Layout().Width(), box.width) << label->caption();
            EXPECT_GE(label->Layout().font.height, 7.0_pt) << label->caption();
        }
        for (std::size_t j = 0; j < i; ++j) {
            if (!controls[j]->visible()) continue;
            EXPECT_FALSE(box.Meets(controls[j]->Painted()))
                << i << " meets " << j << (label ? label->caption() : "");
        }
    }
}

const SixDraws kLongest{{kReseed, {12, 11}, {11, 10}, {11, 10}},
                        {{11, 10}, {11, 10}},
                        {{10, 9}, {10, 8}},
                        {{10, 9}, {10, 9}},
                        {kReseed, kReseed, {2, 0}, {9, 8}, {12, 11}, {12, 11}},
                        {{7, 4}, {12, 11}}};

TEST(Exercices, NothingOverlapsAtTheLongestTexts) {
    Exerciser pupil(kLongest);
    auto& screen = pupil.screen;
    ExpectLegible(screen.form);
    pupil.Click(screen.membership.ui.oui);
    pupil.Enter(screen.factor_pair.ui.flech3, 12);
    pupil.Click(screen.factor_pair.ui.chiffre4);
    ExpectLegible(screen.form);
    pupil.Enter(screen.note_factor.ui.flech8, 4);
    for (Control* control : screen.form.controls()) {
        auto* arrow = dynamic_cast<UpDown*>(control);
        if (arrow && arrow->visible() && arrow != &screen.note_factor.ui.flech8) pupil.Step(*arrow, 200);
    }
    ExpectLegible(screen.form);
    for (const Label* answer : {&screen.membership.ui.chiffre2, &screen.product.ui.chiffre3,
                                &screen.factor_pair.ui.chiffre5, &screen.missing_factor.ui.chiffre6,
                                &screen.factored_sum.ui.chiffre7, &screen.note_factor.ui.chiffre9}) {
        pupil.Click(*answer);
    }
    ExpectLegible(screen.form);

    Exerciser other(
        {.membership = {kReseed, {12, 11}, {11, 10}, {11, 9}}, .factor_pair = kLongest.factor_pair});
    other.Click(other.screen.membership.ui.oui);
    other.Enter(other.screen.factor_pair.ui.flech3, 10);
    other.Click(other.screen.factor_pair.ui.chiffre4);
    ExpectLegible(other.screen.form);
}

}  // namespace
