#include "stats/exercise.h"

#include <algorithm>

namespace onze {

Exercise::Exercise(Sounds& sounds, Tally& tally, Label& message, Label& encore,
                   std::initializer_list<Answer*> answers)
    : sounds_(sounds), tally_(tally), message_(message), encore_(encore), answers_(answers) {
    for (Answer* answer : answers_) answer->on_change = [this] { sounds_.PlayClickSound(); };
}

void Exercise::CorrectAt(std::initializer_list<Label*> labels, const std::vector<const Answer*>& needed,
                         const std::function<void()>& correct) {
    for (Label* label : labels) {
        label->counts_click = [this, needed] { return AnswerGuard(needed); };
        label->on_click = [this, needed, correct] {
            if (AnswerGuard(needed)) correct();
        };
    }
}

bool Exercise::AnswerGuard(const std::vector<const Answer*>& needed) const {
    return !encore_.visible() && std::all_of(needed.begin(), needed.end(), [](const Answer* answer) {
        return answer->entered().has_value();
    });
}

void Exercise::GiveVerdict(bool right, const std::string& text, std::initializer_list<Step> steps) {
    for (const Step step : steps) Take(step, right, text);
}

void Exercise::Take(Step step, bool right, const std::string& text) {
    switch (step) {
        case Step::kCountExercise:
            tally_.CountExercise();
            break;
        case Step::kCountVerdict:
            tally_.CountVerdict(right);
            break;
        case Step::kPlay:
            sounds_.PlayVerdictSound(right);
            break;
        case Step::kTell:
            message_.SetCaption(text);
            break;
        case Step::kClose:
            for (Answer* answer : answers_) answer->Close();
            break;
        case Step::kOffer:
            encore_.Show();
            break;
    }
}

}  // namespace onze
