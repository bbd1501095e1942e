#pragma once

#include <string>

#include "exercises/exercise_panel.h"

// The first factor of a product is asked as a note: DO = 3, RE = 4 and so on to SI = 9.
struct NoteFactorQuestion {
    int NoteFactor;  // 3 to 9
    int second;      // 1 to 12

    static constexpr int kFirstNote = 3;

    static NoteFactorQuestion Draw(Random& random);
    // Of a factor, 3 to 9.
    static const std::string& NoteOf(int factor);
    std::string Text() const;
    std::string Explanation(const std::string& note) const;
};

// The sixth exercise, at the bottom left.
class NoteFactorPanel : private ExercisePanel {
  public:
    NoteFactorPanel(Form& form, SharedState& shared);

    void NewNoteFactorExercise();

    // clang-format off
    struct Ui {
        Form& form;
        //                 left  top   width height
        Label texte5    { form, {  300, 5130, 4290, 720 }, "gsgsdgsd",  kExerciseMessage };
        Label chiffre9  { form, { 1710, 6330,  240, 195 }, kUnanswered, Answer({4_px, 3_px}) };
        Label enonce7   { form, { 2055, 6330, 1230, 195 }, "X",         kExerciseLine };
        Label encor_six { form, { 3375, 6525,  990, 240 }, "Continuer", kExerciseButton };
        UpDown flech8   { form, ArrowOver(chiffre9),       { 0, 6 },    chiffre9 };
    } ui;
    // clang-format on

  private:
    void flech8_Change();
    void chiffre9_Click();

    NoteFactorQuestion question_{};
};
