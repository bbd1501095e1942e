#include "pythagoras/blinker.h"

namespace onze {

namespace {

constexpr int kFlashes = 10;
constexpr int kLitMs = 50;
constexpr int kDarkMs = 150;

}  // namespace

Blinker::Blinker(Stage& stage) : timer_(stage) {
    timer_.on_timer = [this] { timer_Timer(); };
}

void Blinker::Begin() {
    blinks_.push_back({kFlashes, false});
    Flash();
}

void Blinker::timer_Timer() {
    Blink& blink = blinks_.back();
    if (blink.lit) {
        blink.lit = false;
        on_dark();
        timer_.Start(kDarkMs);
    } else if (blink.flashes_left > 0) {
        Flash();
    } else {
        End();
    }
}

void Blinker::Flash() {
    Blink& blink = blinks_.back();
    --blink.flashes_left;
    blink.lit = true;
    on_flash();
    timer_.Start(kLitMs);
}

void Blinker::End() {
    blinks_.pop_back();
    on_end();
    timer_.Stop();
    // The blink before this one has waited long enough meanwhile.
    if (!blinks_.empty()) timer_Timer();
}

}  // namespace onze
