#pragma once

#include <functional>
#include <vector>

#include "forms/timer.h"

namespace onze {

// Blinks ten times, whether its screen is shown or not: on_flash, 50 ms later on_dark, then 150 ms of dark;
// at the end on_end. A blink that begins while others run goes first: it runs to its end, then the one
// before it goes on at once with what it had left.
class Blinker {
  public:
    explicit Blinker(Stage& stage);

    void Begin();

    std::function<void()> on_flash;
    std::function<void()> on_dark;
    std::function<void()> on_end;

  private:
    struct Blink {
        int flashes_left;
        bool lit;
    };

    void timer_Timer();
    void Flash();
    void End();

    Timer timer_;
    std::vector<Blink> blinks_;  // the newest last
};

}  // namespace onze
