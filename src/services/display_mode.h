#pragma once

#include "services/desktop.h"

namespace onze {

// The display's mode, changed for the time of a run.
class DisplayMode {
  public:
    explicit DisplayMode(Desktop& desktop) : desktop_(desktop) {}

    // Asks for a desktop of this size in pixels, each rounded to the nearest whole number, halves to even. A
    // display that refuses stays as it is, and nothing is reported.
    void SetDisplayResolution(float width, float height);

  private:
    Desktop& desktop_;
    DisplayModeRecord record_{};
};

}  // namespace onze
