#pragma once

#include <functional>
#include <initializer_list>
#include <string>
#include <vector>

#include "forms/answer.h"
#include "services/texts.h"
#include "stats/tally.h"

namespace onze {

// What a correction does. Each exercise has an order of its own: a full counter stops the run at its point.
enum class Step {
    kCountExercise,
    kCountVerdict,
    kPlay,   // the victory or the defeat sound
    kTell,   // the message
    kClose,  // no more arrows
    kOffer,  // "Continuer"
};

// What the exercises of both screens have in common: a message, a button for the next question, answers with
// arrows, sounds, and the counters that they move.
class Exercise {
  public:
    Exercise(Sounds& sounds, Tally& tally, Label& message, Label& encore,
             std::initializer_list<Answer*> answers);
    Exercise(const Exercise&) = delete;
    Exercise& operator=(const Exercise&) = delete;

    // Has a click on any of the labels corrected, where it counts.
    void CorrectAt(std::initializer_list<Label*> labels, const std::vector<const Answer*>& needed,
                   const std::function<void()>& correct);
    void CountExercise() { tally_.CountExercise(); }
    // Takes the steps of a correction, in this order.
    void GiveVerdict(bool right, const std::string& text, std::initializer_list<Step> steps);

  private:
    // Whether a click on an answer counts: each of these was entered, and the exercise is not over.
    bool AnswerGuard(const std::vector<const Answer*>& needed) const;
    void Take(Step step, bool right, const std::string& text);

    Sounds& sounds_;
    Tally& tally_;
    Label& message_;
    Label& encore_;
    std::vector<Answer*> answers_;
};

}  // namespace onze
