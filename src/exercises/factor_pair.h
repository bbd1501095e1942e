#pragma once

#include <string>

#include "exercises/looks.h"
#include "exercises/texts.h"
#include "stats/exercise.h"

namespace onze {

// A product of two different tables: any of its divisors within the tables is asked, then the other factor.
struct FactorPairQuestion {
    int PairFirst;  // both 3 to 12
    int PairSecond;

    static FactorPairQuestion Draw(Random& random);
    int PairProduct() const { return PairFirst * PairSecond; }
    bool IsDivisor(int factor) const { return PairProduct() % factor == 0; }
    bool IsRight(int divisor, int factor) const { return divisor * factor == PairProduct(); }

    std::string Text() const;
    // The equation that a divisor begins.
    std::string EquationFrom(int divisor) const;
    // After a number that is no divisor, and after the other factor of one that is.
    std::string TableCorrection() const;
    std::string Correction(bool right, int divisor) const;
};

// The answers' frames keep off the equation before them and leave room for the arrows above.
inline constexpr Margins kPairOutset{0, 2_px, 6_px, 2_px};

// The third exercise, across the screen.
class FactorPairPanel {
  public:
    FactorPairPanel(Form& form, SharedState& shared, Tally& tally);

    void NewFactorPairExercise();

    // The second answer takes its place behind the equation.
    // clang-format off
    struct Ui {
        Form& form;
        //                   left  top   width height
        Label enonce3     { form, {  300, 2865,    0, 195 }, "dgdg",      AutoSized(kExerciseLine, AutoSize::kKeepLeft) };
        Label chiffre4    { form, { 5595, 2865,  240, 195 }, kUnanswered, ExerciseAnswer(kPairOutset) };
        Label chiffre5    { form, { 1500, 2865,  240, 195 }, kUnanswered, ExerciseAnswer(kPairOutset) };
        Label texte2      { form, {  300, 3135, 5220, 600 }, "",          kExerciseMessage };
        Label encor_trois { form, { 5595, 3450,  990, 240 }, "Continuer", kExerciseButton };
        UpDown flech3     { form, ArrowOver(chiffre4, 24_px), { 3, 12 },   chiffre4 };
        UpDown flech4     { form, ArrowOver(chiffre5, 24_px), { 0, 100 },  chiffre5 };
        Answer first      { chiffre4, flech3, Str, kUnanswered };
        Answer second     { chiffre5, flech4, Str, kUnanswered };
    } ui;
    // clang-format on

  private:
    void chiffre4_Click();
    void chiffre5_Click();
    void AskForSecondFactor();

    Exercise exercise_;
    SharedState& shared_;
    FactorPairQuestion question_{};
};

}  // namespace onze
