#pragma once

#include <string>

#include "exercises/looks.h"
#include "exercises/texts.h"
#include "stats/exercise.h"

namespace onze {

// A product of two tables is asked.
struct ProductQuestion {
    int first;  // both 2 to 12
    int second;

    static ProductQuestion Draw(Random& random);
    int ProductAnswer() const { return first * second; }
    bool IsRight(int product) const { return product == ProductAnswer(); }
    std::string Text() const;
    std::string Correction(bool right) const;
};

// The second exercise, at the top right.
class ProductPanel {
  public:
    ProductPanel(Form& form, SharedState& shared, Tally& tally);

    void NewProductExercise();

    // clang-format off
    struct Ui {
        Form& form;
        //                  left  top   width height
        Label enonce2    { form, { 5160,  870, 1770, 195 }, "12 X",       Aligned(kExerciseLine, Align::kRight) };
        Label chiffre3   { form, { 7020,  870,  240, 195 }, kUnanswered,  ExerciseAnswer({3_px, 3_px, 5_px, 3_px}) };
        Label texte      { form, { 5040, 1260, 4350, 690 }, "",           kExerciseMessage };
        Label encor_deux { form, { 8445, 2025,  990, 240 }, "Continuer",  kExerciseButton };
        UpDown flech2    { form, ArrowOver(chiffre3),       { 0, 144 },   chiffre3 };
        Answer product    { chiffre3, flech2, Str, kUnanswered };
    } ui;
    // clang-format on

  private:
    void chiffre3_Click();

    Exercise exercise_;
    SharedState& shared_;
    ProductQuestion question_{};
};

}  // namespace onze
