#include "forms/timer.h"

#include "forms/platform.h"
#include "forms/stage.h"

Timer::Timer(Stage& stage) : stage_(stage) {
    stage.Add(*this);
}

void Timer::Start(std::int64_t interval_ms) {
    interval_ms_ = interval_ms;
    due_ = stage_.platform().TickCount() + interval_ms;
}

void Timer::Run() {
    Start(interval_ms_);
    on_timer();
}
