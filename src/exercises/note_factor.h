#pragma once

#include <string>

#include "exercises/looks.h"
#include "exercises/texts.h"
#include "stats/exercise.h"

namespace onze {

// The first factor of a product is asked as a note: DO = 3, RE = 4 and so on to SI = 9.
struct NoteFactorQuestion {
    int NoteFactor;  // 3 to 9
    int second;      // 1 to 12

    static constexpr int kFirstNote = 3;

    static NoteFactorQuestion Draw(Random& random);
    // Of a factor, 3 to 9; at a place among the notes, 0 to 6.
    static const std::string& NoteOf(int factor);
    static const std::string& NoteAt(int place) { return NoteOf(place + kFirstNote); }
    bool IsRight(int place) const { return place == NoteFactor - kFirstNote; }
    std::string Text() const;
    std::string Explanation(const std::string& note) const;
};

// The sixth exercise, at the bottom left.
class NoteFactorPanel {
  public:
    NoteFactorPanel(Form& form, SharedState& shared, Tally& tally);

    void NewNoteFactorExercise();

    // clang-format off
    struct Ui {
        Form& form;
        //                 left  top   width height
        Label texte5    { form, {  300, 5130, 4290, 720 }, "gsgsdgsd",  kExerciseMessage };
        Label chiffre9  { form, { 1710, 6330,  240, 195 }, kUnanswered, ExerciseAnswer({8_px, 3_px, 4_px, 3_px}) };
        Label enonce7   { form, { 2055, 6330, 1230, 195 }, "X",         kExerciseLine };
        Label encor_six { form, { 3375, 6525,  990, 240 }, "Continuer", kExerciseButton };
        UpDown flech8   { form, ArrowOver(chiffre9),       { 0, 6 },    chiffre9 };
        Answer note     { chiffre9, flech8, NoteFactorQuestion::NoteAt, "" };
    } ui;
    // clang-format on

  private:
    void chiffre9_Click();

    Exercise exercise_;
    SharedState& shared_;
    NoteFactorQuestion question_{};
};

}  // namespace onze
