#include "support/monkey.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <iostream>
#include <optional>

#include "forms/label.h"
#include "shell/program.h"
#include "support/headless_host.h"

namespace onze {

namespace {

// Letters, figures and marks of French and of sums; no number is broken or below zero.
bool IsExpected(const std::string& text) {
    static const std::string kAccented = "àâçèéêîôùûÉ";
    static const std::string kMarks = "\r !'(),-+./:=>?";
    for (std::size_t i = 0; i < text.size(); ++i) {
        const auto c = static_cast<unsigned char>(text[i]);
        const bool number_next = i + 1 < text.size() && std::isdigit(static_cast<unsigned char>(text[i + 1]));
        const bool strange = c >= 0x80 ? kAccented.find(text.substr(i++, 2)) % 2 != 0
                                       : !std::isalnum(c) && kMarks.find(text[i]) == std::string::npos;
        if (strange || ((c == '.' || c == '-') && number_next)) return false;
    }
    return true;
}

bool Fits(const Label& label) {
    const TextLayout layout = label.Layout();
    const Rect room = label.box().Grown(label.style().overhang);
    return layout.Width() <= room.width && layout.Height() <= room.height && layout.font.height >= 6.0_pt;
}

// All of them, in the order of their file.
std::vector<int> Values(const Counters& counters) {
    UsageRecord record;
    record.counters = counters;
    const std::vector<std::byte> bytes = ToBytes(record);
    std::vector<int> values;
    for (std::size_t i = 0; i < bytes.size(); i += 2) {
        values.push_back(std::to_integer<int>(bytes[i]) | std::to_integer<int>(bytes[i + 1]) << 8);
    }
    return values;
}

// A program that is started anew each time it was left.
class Desktop {
  public:
    explicit Desktop(unsigned seed) : random_(seed + 1), monkey_(seed, [this](int time) { Wait(time); }) {
        Start();
    }

    void Act() {
        monkey_.Act(*program_);
        Check();
        host_.calls.clear();
        const Reaction reaction = program_->Take(event::TimePassed());
        ASSERT_NE(reaction.state, Reaction::State::kFailed) << reaction.failure;
        if (reaction.state == Reaction::State::kEnded) Start();
    }

  private:
    void Start() {
        program_.emplace(host_, random_);
        program_->Take(event::Started());
        const std::vector<int> loaded = Values(program_->counters());
        ASSERT_TRUE(values_.empty() || loaded == values_) << "counts are lost";
    }

    void Wait(int time) {
        const std::int64_t end = host_.now + time;
        while (host_.now < end) {
            host_.now = std::clamp(program_->stage().NextDue().value_or(end), host_.now + 1, end);
            program_->Take(event::TimePassed());
        }
    }

    void Check() {
        const Screens& screens = program_->screens();
        const Form* const forms[] = {&screens.depart.form,    &screens.apprendre.form, &screens.leçon.form,
                                     &screens.pythagore.form, &screens.exercices.form, &screens.bilan.form,
                                     &screens.divers.form};
        ASSERT_EQ(std::ranges::count_if(forms, &Form::visible), 1);
        if (screens.exercices.form.visible()) CheckThatNothingOverlaps(screens.exercices.form);
        CheckTexts();
        CheckCounters();
    }

    static void CheckThatNothingOverlaps(const Form& form) {
        std::vector<Rect> places;
        for (const Control* control : form.controls()) {
            if (!control->visible()) continue;
            for (const Rect& place : places) ASSERT_FALSE(control->PaintedBox().Meets(place));
            places.push_back(control->PaintedBox());
        }
    }

    void CheckTexts() const {
        for (const Control* control : program_->stage().front()->controls()) {
            const auto* label = dynamic_cast<const Label*>(control);
            if (!label || !label->visible()) continue;
            ASSERT_TRUE(Fits(*label)) << label->caption();
            ASSERT_TRUE(IsExpected(label->caption())) << label->caption();
        }
    }

    void CheckCounters() {
        const Counters& counters = program_->counters();
        for (std::size_t i = 0; i < counters.TableExercises.size(); ++i) {
            ASSERT_EQ(counters.TableExercises[i], counters.TableRight[i] + counters.TableWrong[i])
                << "table " << i + 2;
        }
        ASSERT_EQ(counters.PuzzleCount, counters.PuzzleRight + counters.PuzzleWrong);
        std::vector<int> values = Values(counters);
        ASSERT_TRUE(values_.empty() || std::ranges::equal(values_, values, std::less_equal()))
            << "a counter fell";
        values_ = std::move(values);
    }

    HeadlessHost host_;
    SeededRandom random_;
    std::optional<Program> program_;
    Monkey monkey_;
    std::vector<int> values_;
};

unsigned FromEnvironment(const char* name, unsigned otherwise) {
    const char* value = std::getenv(name);
    return value ? static_cast<unsigned>(std::stoul(value)) : otherwise;
}

// ONZE_MONKEY_SEED makes another run, ONZE_MONKEY_ACTIONS a longer one.
TEST(Monkey, NothingThatAChildDoesBreaksTheRules) {
    const unsigned seed = FromEnvironment("ONZE_MONKEY_SEED", 1);
    const unsigned actions = FromEnvironment("ONZE_MONKEY_ACTIONS", 100'000);
    std::cout << "ONZE_MONKEY_SEED=" << seed << std::endl;
    Desktop desktop(seed);
    for (unsigned i = 1; i <= actions && !HasFatalFailure(); ++i) {
        SCOPED_TRACE("action " + std::to_string(i) + " of seed " + std::to_string(seed));
        desktop.Act();
    }
}

}  // namespace

}  // namespace onze
