#pragma once

#include <chrono>

#include "forms/clock.h"

namespace onze {

class SteadyClock final : public Clock {
  public:
    std::int64_t TickCount() const override {
        using namespace std::chrono;
        return duration_cast<milliseconds>(steady_clock::now().time_since_epoch()).count();
    }
};

}  // namespace onze
