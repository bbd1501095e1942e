#pragma once

#include <string>

#include "exercises/looks.h"
#include "exercises/texts.h"
#include "stats/exercise.h"

namespace onze {

// A sum or a difference of two multiples of a factor, the larger first in a difference, is asked as a product
// and as a number.
struct FactoredSumQuestion {
    bool sum;
    int FactoredFactor;  // 3 to 11
    int first;           // the two multiples
    int second;

    // Reseeds, and draws both multiples of a difference again until they differ.
    static FactoredSumQuestion Draw(Random& random);
    int FactoredResult() const { return sum ? first + second : first - second; }
    int Cofactor() const { return FactoredResult() / FactoredFactor; }
    bool IsRight(int cofactor, int result) const {
        return cofactor == Cofactor() && result == FactoredResult();
    }
    std::string Text() const;
    std::string Correction(bool right) const;
};

// The fifth exercise, at the bottom right.
class FactoredSumPanel {
  public:
    FactoredSumPanel(Form& form, SharedState& shared, Tally& tally);

    void NewFactoredSumExercise();

    // clang-format off
    struct Ui {
        Form& form;
        //                  left  top   width height
        Label enonce5    { form, { 5190, 5520, 1545, 195 }, "dgdg",        Aligned(kExerciseLine, Align::kRight) };
        Label chiffre7   { form, { 6810, 5520,  240, 195 }, kUnanswered,   ExerciseAnswer({1_px, 0, 4_px, 0}) };
        Label enonce6    { form, { 7110, 5520,  210, 195 }, " =",          kExerciseLine };
        Label chiffre8   { form, { 7380, 5520,  240, 195 }, kUnanswered,   ExerciseAnswer({3_px, 0, 4_px, 0}) };
        Label texte4     { form, { 5040, 6105, 4350, 600 }, kEnterAnswers, kExerciseMessage };
        Label encor_cinq { form, { 7650, 5745,  990, 240 }, "Continuer",   kExerciseButton };
        UpDown flech6    { form, ArrowOver(chiffre7),       { 0, 100 },    chiffre7 };
        UpDown flech7    { form, ArrowOver(chiffre8),       { 0, 500 },    chiffre8 };
        Answer cofactor  { chiffre7, flech6, Str, kUnanswered };
        Answer result    { chiffre8, flech7, Str, kUnanswered };
    } ui;
    // clang-format on

  private:
    void chiffre7_Click();
    void chiffre8_Click() { chiffre7_Click(); }

    Exercise exercise_;
    SharedState& shared_;
    FactoredSumQuestion question_{};
};

}  // namespace onze
