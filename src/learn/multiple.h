#pragma once

#include <string>

#include "learn/looks.h"
#include "stats/exercise.h"
#include "support/number_text.h"

namespace onze {

// The sum's place begins right at the end of the product line; its frame keeps a little off the "=".
inline const LabelStyle kSumAnswer = [] {
    LabelStyle style = kPanelAnswer;
    style.outset = style.overhang = {-4_px, 0, 4_px, 0};
    return style;
}();

// Whether the sum of two numbers is a multiple of the table and, when it is, how it is written as a product.
struct MultipleQuestion {
    int table;
    bool SumIsMultiple;
    int SumFirstTerm;
    int SumSecondTerm;

    static MultipleQuestion Draw(Random& random, int table);
    int Sum() const { return SumFirstTerm + SumSecondTerm; }
    bool IsRightProduct(int factor, int sum) const { return factor * table == Sum() && sum == Sum(); }

    std::string Text() const;
    std::string AfterOui() const;
    std::string AfterNon() const;
    std::string ProductLine() const;
    std::string ProductCorrection(bool right) const;

  private:
    static MultipleQuestion DrawMultiple(Random& random, int table);
    static MultipleQuestion DrawOther(Random& random, int table);
    std::string Addition() const;
};

// The second panel of the learning screen.
class MultiplePanel {
  public:
    MultiplePanel(Form& form, SharedState& shared, Tally& tally);

    // The sum is entered in steps of the table.
    void StepByTable() { ui.fleche3.SetIncrement(shared_.CurrentTable); }
    void NewMultipleQuestion();

    // The arrows stand below their answers, whose middles they share: the sum's place follows the product
    // line before it.
    // clang-format off
    struct Ui {
        Form& form;
        //                     left    top      width   height
        Label enonce2        { form, { 246_px, 147_px, 376_px, 48_px }, "",          kPanelMessage };
        Label oui            { form, { 340_px, 211_px,  60_px, 18_px }, "OUI",       kButton };
        Label non            { form, { 440_px, 211_px,  60_px, 18_px }, "NON",       kButton };
        Label chiffre2       { form, { 246_px, 202_px,  40_px, 22_px }, kUnanswered, kPanelAnswer };
        Label operation2     { form, { 290_px, 202_px,   0_px, 22_px }, "",          AutoSized(kPanelLine, AutoSize::kKeepLeft) };
        Label chiffre3       { form, { 470_px, 202_px,  44_px, 22_px }, kUnanswered, kSumAnswer };
        Label encore_deux    { form, { 549_px, 236_px,  70_px, 16_px }, "Continuer", kButton };
        UpDown fleche2       { form, { 246_px, 225_px,  40_px, 28_px }, { 0, 50 },   chiffre2 };
        UpDown fleche3       { form, { 470_px, 225_px,  52_px, 28_px }, { 0, 1000 }, chiffre3 };
        Answer factor        { chiffre2, fleche2, Digits, kUnanswered };
        Answer sum           { chiffre3, fleche3, Digits, kUnanswered };
    } ui;
    // clang-format on

  private:
    void oui_Click();
    void non_Click();
    void chiffre2_Click();
    void AskForProduct();

    Exercise exercise_;
    SharedState& shared_;
    MultipleQuestion question_{};
};

}  // namespace onze
