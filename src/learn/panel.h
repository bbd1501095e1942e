#pragma once

#include "forms/look.h"
#include "forms/up_down.h"
#include "services/texts.h"
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

class Panel {
  protected:
    explicit Panel(SharedState& shared) : shared_(shared) {}

    int table() const { return shared_.CurrentTable; }
    Sounds& sounds() const { return shared_.sounds; }
    SharedState& shared() const { return shared_; }

    void CountExercise();
    // The verdict on an answer: its sound and its counter. A full counter stops the run at its point, so each
    // exercise keeps to its own order.
    void SoundAndCount(bool right);
    void CountAndSound(bool right);

    // An arrow's change: its click, and its value as bare digits in its answer.
    void ShowNumber(const UpDown& arrows, Label& answer);

  private:
    void Count(bool right);

    SharedState& shared_;
};
