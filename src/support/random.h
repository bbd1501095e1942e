#pragma once

#include <random>

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
    void Randomize() override;
    int Draw(int bound) override;

  private:
    std::minstd_rand engine_;
};
