#pragma once

#include "forms/platform.h"

// The display's mode, changed for the time of a run.
class DisplayMode {
  public:
    explicit DisplayMode(Platform& platform) : platform_(platform) {}

    // Asks for a desktop of this size in pixels, each rounded to the nearest whole number, halves to even. A
    // display that refuses stays as it is, and nothing is reported.
    void SetDisplayResolution(float width, float height);

  private:
    Platform& platform_;
    DisplayModeRecord record_{};
};
