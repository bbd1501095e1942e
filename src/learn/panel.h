#pragma once

#include "forms/look.h"
#include "forms/up_down.h"
#include "stats/shared_state.h"

// What the four panels of the learning screen have in common.

inline const LabelStyle kPanelLine{.font = {12.0_pt, true}, .color = kInk, .middle = true};
inline const LabelStyle kPanelAnswer{.font = {12.0_pt, true},
                                     .color = kInk,
                                     .align = Align::kCenter,
                                     .middle = true,
                                     .fill = Color{255, 255, 255},
                                     .frame = kInk,
                                     .radius = 3_px};
inline const LabelStyle kPanelMessage{.font = {9.75_pt, false}, .color = kInk};

inline LabelStyle Aligned(LabelStyle style, Align align) {
    style.align = align;
    return style;
}

inline LabelStyle AutoSized(LabelStyle style, AutoSize auto_size) {
    style.auto_size = auto_size;
    return style;
}

class Panel {
  protected:
    explicit Panel(SharedState& shared) : shared_(shared) {}

    int table() const { return shared_.CurrentTable; }
    Sounds& sounds() const { return shared_.sounds; }
    SharedState& shared() const { return shared_; }

    void CountExercise();
    void CountRight();
    void CountWrong();

    // The sound of a verdict, then its counter.
    void SoundAndCount(bool right);

  private:
    SharedState& shared_;
};
