#pragma once

#include <string>

#include "learn/looks.h"
#include "stats/exercise.h"

namespace onze {

// A letter that stands for a number, A = 1 to Z = 26, is asked by its product with the table.
struct LetterCodeQuestion {
    int table;
    int LetterCodeAnswer;  // 1 to 26

    // Goes on with the random sequence as it is.
    static LetterCodeQuestion Draw(Random& random, int table) { return {table, random.Draw(26) + 1}; }
    // Letters go by their character codes.
    static int CodeOf(int number) { return 'A' + number - 1; }
    static std::string LetterOfCode(int code) { return std::string(1, static_cast<char>(code)); }
    bool IsRight(int code) const { return code == CodeOf(LetterCodeAnswer); }

    std::string Text() const;
    std::string Correction(bool right) const;
};

// The third panel of the learning screen.
class LetterCodePanel {
  public:
    LetterCodePanel(Form& form, SharedState& shared, Tally& tally);

    void NewLetterCodeQuestion();

    // clang-format off
    struct Ui {
        Form& form;
        //                     left    top      width   height
        Label enonce3        { form, { 246_px, 301_px, 376_px, 48_px }, "",          kPanelMessage };
        Label chiffre4       { form, { 246_px, 271_px,  30_px, 22_px }, "A",         kPanelAnswer };
        Label operation3     { form, { 306_px, 271_px, 160_px, 22_px }, "",          kPanelLine };
        Label encore_trois   { form, { 549_px, 274_px,  70_px, 16_px }, "Continuer", kButton };
        UpDown fleche4       { form, { 278_px, 267_px,  22_px, 30_px }, { 65, 90 },  chiffre4 };
        Answer letter        { chiffre4, fleche4, LetterCodeQuestion::LetterOfCode, "" };
    } ui;
    // clang-format on

  private:
    void chiffre4_Click();

    Exercise exercise_;
    SharedState& shared_;
    LetterCodeQuestion question_{};
};

}  // namespace onze
