#pragma once

#include <string>

#include "forms/look.h"
#include "forms/up_down.h"
#include "services/texts.h"
#include "stats/shared_state.h"

// What the six exercises have in common: their looks, their arrows, their counters and their sounds.

inline constexpr Font kExerciseFont{8.25_pt, true};

inline const LabelStyle kExerciseLine{.font = kExerciseFont, .color = kInk, .middle = true};
inline const LabelStyle kExerciseMessage{.font = kExerciseFont, .color = kInk};

// A place to fill in. Its frame passes the box as far as the neighbours leave room; the text stays inside.
inline LabelStyle Answer(Margins outset) {
    return {.font = kExerciseFont,
            .color = {0, 70, 170},
            .align = Align::kCenter,
            .middle = true,
            .fill = Color{255, 255, 255},
            .frame = Color{110, 140, 195},
            .radius = 3_px,
            .outset = outset,
            .overhang = {outset.left - 1_px, 0, outset.right - 1_px, 0}};
}

// One "Continuer" stands right below the corner of an answer, hence so little around a button.
inline const LabelStyle kExerciseButton = [] {
    LabelStyle style = kButton;
    style.font.height = 9.75_pt;
    style.outset = 1_px;
    return style;
}();

// An arrow stands right over its answer, in the middle: within an equation there is no room at the sides.
inline constexpr int kArrowLead = 8_px;  // how far it passes the answer to the left and to the right

inline Rect ArrowOver(const Label& answer) {
    const Rect& box = answer.box();
    return {box.left - kArrowLead, answer.Reach().top - 27_px, box.width + 2 * kArrowLead, 26_px};
}

inline const std::string kEnterAnswerOnTwoLines =
    "Entrez votre réponse grâce aux flèches puis\rcliquez sur cette réponse pour la correction.";
inline const std::string kRightGoOn =
    "C'est juste ! Entrez votre réponse grâce aux flèches\r"
    "puis cliquez sur cette réponse pour la correction.";
inline const std::string kSolved = "Bravo ! Vous avez trouvé la solution !" + kContinueLine;

// A product whose first factor is asked, in an answer that stands before this text.
std::string TimesText(int second, int product);

class ExercisePanel {
  protected:
    explicit ExercisePanel(SharedState& shared) : shared_(shared) {}

    SharedState& shared() const { return shared_; }
    Sounds& sounds() const { return shared_.sounds; }
    Random& random() const { return shared_.random; }

    // Makes the arrow's changes heard, and seen in its answer.
    void Link(UpDown& arrow, Label& answer);
    // An answer to be entered: the arrow shown, at its minimum, and nothing in the answer yet.
    static void Ask(UpDown& arrow, Label& answer);
    // Whether a click on an answer counts: something was entered, and the exercise is not over.
    static bool AnswerGuard(const Label& answer, const Label& encor);

    void CountExercise();
    void Count(bool right);
    // What most verdicts do, in this order: the counter, the sound, the message.
    void Tell(bool right, Label& message, const std::string& text);

  private:
    SharedState& shared_;
};
