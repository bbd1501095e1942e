#pragma once

#include <string>

#include "learn/looks.h"
#include "stats/exercise.h"

namespace onze {

inline const std::string kChooseSign =
    "Entrez le signe grâce aux flèches puis cliquez sur ce signe pour la correction.";

// Two multiples of the table, the first the larger, whose sign is asked by their result and its factored
// form.
struct MissingSignQuestion {
    int table;
    int first;  // factors of the two multiples
    int second;
    int MissingSign;  // 0 plus, 1 minus, 2 times

    static MissingSignQuestion Draw(Random& random, int table);
    static const std::string& SignText(int sign);

    bool IsRight(int sign) const { return sign == MissingSign; }
    std::string FirstOperand() const;
    std::string Rest() const;
    std::string Correction(bool right) const;

  private:
    int Factor() const;
    std::string SignExplanation() const;
};

// The fourth panel of the learning screen.
class MissingSignPanel {
  public:
    MissingSignPanel(Form& form, SharedState& shared, Tally& tally);

    void NewMissingSignQuestion();

    // clang-format off
    struct Ui {
        Form& form;
        //                     left    top      width   height
        Label enonce4        { form, { 246_px, 396_px, 376_px, 48_px }, kChooseSign, kPanelMessage };
        Label chiffre5       { form, { 242_px, 366_px,  42_px, 22_px }, "",          Aligned(kPanelLine, Align::kRight) };
        Label signe          { form, { 288_px, 366_px,  28_px, 22_px }, "?",         kPanelAnswer };
        Label operation4     { form, { 344_px, 366_px, 196_px, 22_px }, "",          kPanelLine };
        Label encore_quatre  { form, { 549_px, 369_px,  70_px, 16_px }, "Continuer", kButton };
        UpDown fleche5       { form, { 318_px, 362_px,  22_px, 30_px }, { 0, 2 },    signe };
        Answer sign          { signe, fleche5, MissingSignQuestion::SignText, "?" };
    } ui;
    // clang-format on

  private:
    void signe_Click();

    Exercise exercise_;
    SharedState& shared_;
    MissingSignQuestion question_{};
};

}  // namespace onze
