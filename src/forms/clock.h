#pragma once

#include <cstdint>

namespace onze {

class Clock {
  public:
    virtual ~Clock() = default;

    // Milliseconds since some moment before the start of the program; never goes back.
    virtual std::int64_t TickCount() const = 0;
};

}  // namespace onze
