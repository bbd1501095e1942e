#pragma once

#include <string>

#include "exercises/looks.h"
#include "exercises/texts.h"
#include "stats/exercise.h"

namespace onze {

// Whether a number is a result of a table and, when it is, by which factor.
struct MembershipQuestion {
    int number;
    int MembershipTable;  // 2 to 12

    static MembershipQuestion Draw(Random& random);
    bool IsMember() const { return number % MembershipTable == 0; }
    int Factor() const { return number / MembershipTable; }
    bool IsRight(int factor) const { return number == MembershipTable * factor; }

    std::string Text() const;
    std::string AfterOui() const;
    std::string AfterNon() const;
    // Of the factor, within the equation that stands around it.
    std::string Correction(bool right) const;
    std::string BeforeFactor() const;
    std::string BehindFactor() const;

  private:
    std::string NoMember() const;
};

// It ends where the factor begins; its text keeps off the factor's frame.
inline const LabelStyle kBeforeFactor = [] {
    LabelStyle style = AutoSized(kExerciseLine, AutoSize::kKeepRight);
    style.overhang = {3_px, 0, -3_px, 0};
    return style;
}();

// The first exercise, below the third.
class MembershipPanel {
  public:
    MembershipPanel(Form& form, SharedState& shared, Tally& tally);

    void NewMembershipExercise();

    // The factor takes all the room between the two halves of its equation.
    // clang-format off
    struct Ui {
        Form& form;
        //                 left  top   width height
        Label chiffre1  { form, {  255, 3885,    0, 195 }, "",           AutoSized(kExerciseLine, AutoSize::kKeepLeft) };
        Label probleme1 { form, {  645, 3885, 3960, 195 }, "",           kExerciseLine };
        Label oui       { form, { 2940, 4515,  675, 255 }, "OUI",        kExerciseButton };
        Label non       { form, { 3870, 4515,  675, 255 }, "NON",        kExerciseButton };
        Label lab       { form, { 3645, 4545,  120, 195 }, "",           kBeforeFactor };
        Label chiffre2  { form, { 3765, 4545,  240, 195 }, kUnanswered,  ExerciseAnswer({0, 3_px, 3_px, 3_px}) };
        Label lab2      { form, { 4050, 4545,  600, 195 }, "",           kExerciseLine };
        Label enonce1   { form, { 4890, 3885, 4530, 600 }, "Cliquez sur OUI ou NON pour répondre", kExerciseMessage };
        Label encor_un  { form, { 4890, 4665,  990, 240 }, "Continuer",  kExerciseButton };
        UpDown flech1   { form, ArrowOver(chiffre2),       { 0, 200 },   chiffre2 };
        Answer factor   { chiffre2, flech1, Str, kUnanswered };
    } ui;
    // clang-format on

  private:
    void oui_Click();
    void non_Click();
    void chiffre2_Click();
    void AskForFactor();

    Exercise exercise_;
    SharedState& shared_;
    MembershipQuestion question_{};
};

}  // namespace onze
