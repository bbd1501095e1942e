#pragma once

#include "forms/look.h"

namespace onze {

// What the four exercises of the learning screen look like.

inline const LabelStyle kPanelLine{.font = {12.0_pt, true}, .color = kInk, .middle = true};
inline const LabelStyle kPanelAnswer = [] {
    LabelStyle style = kAnswer;
    style.font = {12.0_pt, true};
    style.color = kInk;
    style.frame = kInk;
    return style;
}();
inline const LabelStyle kPanelMessage{.role = Role::kMessage, .font = {9.75_pt, false}, .color = kInk};

}  // namespace onze
