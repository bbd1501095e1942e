#pragma once

#include <string>

#include "exercises/looks.h"
#include "exercises/texts.h"
#include "stats/exercise.h"

namespace onze {

// The first factor of a product is asked.
struct MissingFactorQuestion {
    int MissingFactor;  // both 2 to 11
    int second;

    static MissingFactorQuestion Draw(Random& random);
    bool IsRight(int factor) const { return factor == MissingFactor; }
    std::string Text() const;
    std::string Correction(bool right) const;
};

// The fourth exercise, at the top left.
class MissingFactorPanel {
  public:
    MissingFactorPanel(Form& form, SharedState& shared, Tally& tally);

    void NewMissingFactorExercise();

    // clang-format off
    struct Ui {
        Form& form;
        //                    left  top   width height
        Label chiffre6     { form, { 1410,  870,  240, 195 }, kUnanswered,  ExerciseAnswer({4_px, 3_px}) };
        Label enonce4      { form, { 1755,  870, 1785, 195 }, "dgdg",       kExerciseLine };
        Label texte3       { form, {  300, 1260, 4290, 690 }, kEnterAnswer, kExerciseMessage };
        Label encor_quatre { form, { 2760, 2025,  990, 240 }, "Continuer",  kExerciseButton };
        UpDown flech5      { form, ArrowOver(chiffre6),       { 0, 12 },    chiffre6 };
        Answer factor      { chiffre6, flech5, Str, kUnanswered };
    } ui;
    // clang-format on

  private:
    void chiffre6_Click();

    Exercise exercise_;
    SharedState& shared_;
    MissingFactorQuestion question_{};
};

}  // namespace onze
