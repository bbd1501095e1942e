#pragma once

#include <cstdint>
#include <random>

namespace onze {

// The source of all draws. Draw(k) + c is a whole number from c to c + k - 1.
class Random {
  public:
    virtual ~Random() = default;

    // Starts another sequence, chosen by the clock.
    virtual void Randomize() = 0;
    // A whole number from 0 to bound - 1, all equally likely; bound is at least 1.
    virtual int Draw(int bound) = 0;
};

class ClockRandom final : public Random {
  public:
    using Clock = std::int64_t (*)();  // any unit
    explicit ClockRandom(Clock clock = SystemClock) : clock_(clock) {}

    void Randomize() override;
    int Draw(int bound) override;

  private:
    static std::int64_t SystemClock();

    Clock clock_;
    std::uint32_t reseedings_ = 0;
    std::minstd_rand engine_;
};

}  // namespace onze
