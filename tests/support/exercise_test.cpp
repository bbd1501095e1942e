#include "support/exercise.h"

#include <algorithm>
#include <array>

namespace onze {

std::string Put(std::string text, const std::vector<Word>& words) {
    for (const Word& word : words) text.replace(text.find("{}"), 2, word);
    return text;
}

namespace {

using Controls = std::vector<Control*>;

// A pupil at one exercise of its screen, where everything is seen, heard and counted as its table says.
class Sitting : public Pupil {
  public:
    explicit Sitting(ExerciseOf exercise, const Counters& counters = {});

    const std::vector<Way>& ways() const { return exercise_.ways; }
    // The counters of exercises, right and wrong answers, in that order.
    std::array<std::int16_t*, 3> Counted(Counters& counters, const Way& way) const;
    void Open(const Way& way);
    // Answers with so many of the way's deeds, or to the end.
    void Play(const Way& way, std::size_t deeds = 99);
    void Continue(const Way& next);
    void Leave();

    // Runs into a full counter at the end of a way, and tells what was done before.
    std::string DoneBefore(const Way& way, std::size_t full);

  private:
    static std::string Seen(const Controls& controls);
    void Do(const Deed& deed, bool right);
    void TapWhatIsDead();
    void ResetArrows(const Controls& controls);
    std::string NextClick() { return std::to_string(clicks_++ % 10 + 1); }
    std::string Verdict(bool right) {
        int& before = right ? victories_ : defeats_;
        return std::to_string(before++ % 4 + 1) + (right ? ".vic" : ".def");
    }

    const ExerciseCase exercise_;
    const bool learning_ = &exercise_.form == &screens.apprendre.form;
    Controls controls_;  // of the exercise
    Controls others_;    // of its screen
    Counters counters_;  // as they should be
    int clicks_ = 0;
    int victories_ = 0;
    int defeats_ = 0;
};

Sitting::Sitting(ExerciseOf exercise, const Counters& counters)
    : Pupil(counters), exercise_(exercise(screens)), counters_(counters) {
    bool inside = false;
    for (Control* control : exercise_.form.controls()) {
        inside |= control == &exercise_.first;
        (inside ? controls_ : others_).push_back(control);
        inside &= control != &exercise_.last;
    }
}

void Sitting::Open(const Way& way) {
    if (learning_) {
        ChooseTable(way.table, exercise_.place, way.draws);
        ++counters_.TableConsultations[static_cast<std::size_t>(way.table - kFirstTable)];
    } else {
        OpenExercises(exercise_.place, way.draws);
    }
}

void Sitting::Continue(const Way& next) {
    random.Expect(next.draws);
    ResetArrows(controls_);
    Click(exercise_.encore);
    EXPECT_EQ(Heard(), Names());
}

void Sitting::Leave() {
    ResetArrows(exercise_.form.controls());
    Click(learning_ ? screens.apprendre.retour : screens.exercices.fin);
    EXPECT_EQ(Heard(), Names{"3"});
    EXPECT_TRUE(Sees(screens.depart.form));
}

// Every arrow that is about to be set back uses up a click of the cycle, unheard.
void Sitting::ResetArrows(const Controls& controls) {
    for (const Control* control : controls) {
        const auto* arrow = dynamic_cast<const UpDown*>(control);
        if (arrow && arrow->value() != arrow->minimum()) NextClick();
    }
}

std::array<std::int16_t*, 3> Sitting::Counted(Counters& counters, const Way& way) const {
    if (!learning_) return {&counters.PuzzleCount, &counters.PuzzleRight, &counters.PuzzleWrong};
    const auto i = static_cast<std::size_t>(way.table - kFirstTable);
    return {&counters.TableExercises[i], &counters.TableRight[i], &counters.TableWrong[i]};
}

std::string Sitting::Seen(const Controls& controls) {
    std::string seen;
    for (const Control* control : controls) {
        if (!control->visible()) continue;
        if (!seen.empty()) seen += '|';
        if (const auto* label = dynamic_cast<const Label*>(control)) seen += label->caption();
        if (const auto* arrow = dynamic_cast<const UpDown*>(control))
            seen += "^" + std::to_string(arrow->value());
    }
    return seen;
}

void Sitting::Play(const Way& way, std::size_t deeds) {
    ASSERT_EQ(Seen(controls_), way.asked);
    const std::string others = Seen(others_);
    for (std::size_t i = 0; i < std::min(deeds, way.deeds.size()); ++i) {
        const bool last = i + 1 == way.deeds.size();
        TapWhatIsDead();
        if (testing::Test::HasFailure()) return;
        if (last) {
            const auto counted = Counted(counters_, way);
            ++*counted[0], ++*counted[way.right ? 1 : 2];
        }
        Do(way.deeds[i], way.right || !last);
        EXPECT_EQ(program.counters(), counters_);
        EXPECT_EQ(Seen(others_), others);
    }
    TapWhatIsDead();
}

void Sitting::Do(const Deed& deed, bool right) {
    if (deed.clicked) {
        Click(*deed.clicked);
        EXPECT_TRUE(hand || by_keys);
        EXPECT_EQ(Heard(), Names{Verdict(right)});
        EXPECT_EQ(Seen(controls_), deed.seen);
        exercise_.check();
        return;
    }
    Step(*deed.arrow, 1);  // so that something is entered in any case
    Turn(*deed.arrow, deed.value);
    const Names heard = Heard();
    EXPECT_FALSE(heard.empty());
    for (const std::string& click : heard) EXPECT_EQ(click, NextClick());
}

// While an answer is lacking, and once the exercise is over, a click on an answer does nothing.
void Sitting::TapWhatIsDead() {
    const std::string seen = Seen(controls_);
    if (!exercise_.encore.visible() && ("|" + seen).find("|?") == std::string::npos) return;
    for (const Control* control : controls_) {
        if (!control->visible() || !control->on_click || control == &exercise_.encore) continue;
        Tap(*control);
        EXPECT_FALSE(hand);
    }
    EXPECT_EQ(Seen(controls_), seen);
    EXPECT_EQ(Heard(), Names());
    EXPECT_EQ(program.counters(), counters_);
}

std::string Sitting::DoneBefore(const Way& way, std::size_t full) {
    static constexpr std::array kTable{"TableExercises", "TableRight", "TableWrong"};
    static constexpr std::array kPuzzle{"PuzzleCount", "PuzzleRight", "PuzzleWrong"};
    Open(way);
    Play(way, way.deeds.size() - 1);
    const std::string message = exercise_.message.caption();
    Controls shown;
    std::ranges::copy_if(controls_, std::back_inserter(shown), &Control::visible);
    ClickIntoFull(*way.deeds.back().clicked,
                  learning_ ? kTable.at(full) + ("(" + std::to_string(way.table - kFirstTable) + ")")
                            : kPuzzle.at(full));
    std::string done;
    if (!std::ranges::all_of(shown, &Control::visible)) done += 'a';
    if (!Heard().empty()) done += 'h';
    if (exercise_.message.caption() != message) done += 't';
    if (exercise_.encore.visible()) done += 'c';
    Counters counters = program.counters();
    for (const std::int16_t* counter : Counted(counters, way)) done += *counter == 1 ? "+" : "";
    return done;
}

// Whatever was done before, to the end or not, nothing of it is left in the next question.
TEST_P(ExerciseTest, IsAskedAnsweredAndCountedAsIfForTheFirstTime) {
    Sitting sitting(GetParam());
    for (const Way& before : sitting.ways()) {
        for (const Way& way : sitting.ways()) {
            SCOPED_TRACE(before.asked + " THEN " + way.asked);
            for (std::size_t deeds = 1; deeds <= before.deeds.size(); ++deeds) {
                if (HasFailure()) return;
                sitting.Open(before);
                sitting.Play(before, deeds);
                if (deeds < before.deeds.size() || way.table != before.table) {
                    sitting.Leave();
                    sitting.Open(way);
                } else {
                    sitting.Continue(way);
                }
                sitting.Play(way);
                sitting.Leave();
            }
        }
    }
}

TEST_P(ExerciseTest, IsAnsweredByKeysAlone) {
    Sitting sitting(GetParam());
    sitting.by_keys = true;
    for (std::size_t i = 0; i < sitting.ways().size() && !HasFailure(); ++i) {
        const Way& way = sitting.ways()[i];
        SCOPED_TRACE(way.asked);
        sitting.Open(way);
        sitting.Play(way);
        sitting.Continue(way);
        sitting.Play(way);
        sitting.Leave();
    }
}

// The order of what a correction does, seen by what a counter's overflow leaves undone.
TEST_P(ExerciseTest, StopsAtAFullCounter) {
    const Sitting any(GetParam());
    for (std::size_t i = 0; i < any.ways().size(); ++i) {
        const Way& way = any.ways()[i];
        for (const std::size_t full : {0U, way.right ? 1U : 2U}) {
            SCOPED_TRACE(way.deeds.back().seen);
            Counters counters;
            *any.Counted(counters, way)[full] = 32767;
            Sitting sitting(GetParam(), counters);
            EXPECT_EQ(sitting.DoneBefore(sitting.ways()[i], full),
                      full == 0 ? way.before_exercises : way.before_verdict);
        }
    }
}

}  // namespace

}  // namespace onze
