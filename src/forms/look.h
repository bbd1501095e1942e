#pragma once

#include "forms/label.h"

namespace onze {

// What all screens share of the program's looks.

inline constexpr Color kBlack{0, 0, 0};
inline constexpr Color kInk{46, 53, 80};
inline constexpr Color kRed{255, 0, 0};
inline constexpr Color kBlue{0, 0, 255};
inline constexpr Color kPurple{192, 0, 192};

// The ring around what the keys go to.
inline constexpr Color kFocusDark{16, 42, 140};
inline constexpr Color kFocusLight{255, 255, 255};
inline constexpr int kFocusRing = 4_px;  // how far it passes what it is around
inline constexpr int kFocusRadius = 6_px;

inline constexpr Color kArrowFill{255, 214, 102};
inline constexpr Color kHeldFill{240, 176, 48};
inline constexpr Color kKeyFoot{226, 166, 46};
inline constexpr Color kArrowFrame{154, 103, 10};
inline constexpr Color kArrowMark{92, 58, 0};
inline constexpr int kArrowRadius = 3_px;

// The looks of each role; a screen changes of them what is its own.
inline const LabelStyle kAnswer{.role = Role::kAnswer,
                                .align = Align::kCenter,
                                .middle = true,
                                .fill = Color{255, 255, 255},
                                .radius = 3_px};

inline const LabelStyle kButton{.role = Role::kButton,
                                .font = {8.25_pt, true},
                                .color = kInk,
                                .align = Align::kCenter,
                                .middle = true,
                                .fill = Color{255, 224, 130},
                                .foot = kKeyFoot,
                                .held = kHeldFill,
                                .frame = Color{154, 103, 10},
                                .radius = 5_px,
                                .outset = 3_px};

inline LabelStyle Aligned(LabelStyle style, Align align) {
    style.align = align;
    return style;
}

inline LabelStyle AutoSized(LabelStyle style, AutoSize auto_size) {
    style.auto_size = auto_size;
    return style;
}

}  // namespace onze
