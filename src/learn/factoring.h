#pragma once

#include <string>

#include "learn/looks.h"
#include "stats/exercise.h"
#include "support/number_text.h"

namespace onze {

// A sum or a difference of two multiples of the table, the larger first in a difference, whose factor is
// asked.
struct FactoringQuestion {
    int table;
    bool sum;
    int first;  // factors of the two multiples
    int second;

    static FactoringQuestion Draw(Random& random, int table);
    int FactoringAnswer() const { return sum ? first + second : first - second; }
    bool IsRight(int factor) const { return factor == FactoringAnswer(); }
    std::string Text() const;
    std::string Correction(bool right) const;
};

// The first panel of the learning screen.
class FactoringPanel {
  public:
    FactoringPanel(Form& form, SharedState& shared, Tally& tally);

    void NewFactoringQuestion();
    // What leaving the screen resets.
    void Leave();

    // clang-format off
    struct Ui {
        Form& form;
        //                     left    top     width   height
        Label enonce         { form, { 246_px,  54_px, 184_px, 22_px }, "",           Aligned(kPanelLine, Align::kRight) };
        Label chiffre        { form, { 436_px,  54_px,  36_px, 22_px }, "??",         kPanelAnswer };
        Label label_table1   { form, { 246_px,  84_px, 376_px, 48_px }, kEnterAnswer, kPanelMessage };
        Label encore_un      { form, { 549_px,  57_px,  70_px, 16_px }, "Continuer",  kButton };
        UpDown fleche        { form, { 474_px,  50_px,  22_px, 30_px }, { 0, 50 },    chiffre };
        Answer factor        { chiffre, fleche, Digits, kUnanswered };
    } ui;
    // clang-format on

  private:
    void chiffre_Click();

    Exercise exercise_;
    SharedState& shared_;
    FactoringQuestion question_{};
};

}  // namespace onze
