#include "forms/timer.h"

#include "forms/stage.h"

namespace onze {

Timer::Timer(Stage& stage) : stage_(stage) {
    stage.Add(*this);
}

Timer::~Timer() {
    stage_.Remove(*this);
}

void Timer::Start(std::int64_t interval_ms) {
    interval_ms_ = interval_ms;
    due_ = stage_.clock().TickCount() + interval_ms;
}

void Timer::Run() {
    Start(interval_ms_);
    on_timer();
}

}  // namespace onze
