#pragma once

#include "forms/look.h"
#include "forms/up_down.h"

namespace onze {

// What the exercises of this screen look like. What a caption holds before the first question is never seen.

inline constexpr Font kExerciseFont{8.25_pt, true};

inline const LabelStyle kExerciseLine{.font = kExerciseFont, .color = kInk, .middle = true};
inline const LabelStyle kExerciseMessage{.role = Role::kMessage, .font = kExerciseFont, .color = kInk};

// A place to fill in. Its frame passes the box as far as the neighbours leave room; the text stays inside.
inline LabelStyle ExerciseAnswer(Margins outset) {
    LabelStyle style = kAnswer;
    style.font = kExerciseFont;
    style.color = {0, 70, 170};
    style.frame = Color{110, 140, 195};
    style.outset = outset;
    style.overhang = {outset.left - 1_px, 0, outset.right - 1_px, 0};
    return style;
}

// One "Continuer" stands right below the corner of an answer, hence nothing above and below a button.
inline const LabelStyle kExerciseButton = [] {
    LabelStyle style = kButton;
    style.font.height = 9.75_pt;
    style.outset = {3_px, 0};
    return style;
}();

// An arrow stands right over its answer, in the middle: within an equation there is no room at the sides.
inline constexpr int kArrowLead = 8_px;  // how far it passes the answer's box to the left

inline Rect ArrowOver(const Label& answer, int height = 26_px) {
    const Rect place = answer.HitBox();
    const int left = answer.box().left - kArrowLead;
    return {left, place.top - height - 1_px, place.left + place.right() - 2 * left, height};
}

}  // namespace onze
