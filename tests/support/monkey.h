#pragma once

#include <functional>
#include <random>
#include <stdexcept>

#include "shell/program.h"
#include "support/random.h"

namespace onze {

// Draws that are the same at each run of a test.
class SeededRandom final : public Random {
  public:
    explicit SeededRandom(unsigned seed) : engine_(seed) {}

    void Randomize() override { draws_ = 0; }
    int Draw(int bound) override {
        if (++draws_ > 20'000'000) throw std::logic_error("draws without end");
        return std::uniform_int_distribution<int>(0, bound - 1)(engine_);
    }

  private:
    std::mt19937 engine_;
    int draws_ = 0;  // since the last reseeding
};

// A child that does anything at all with the pointer and the keys: clicks here and there, holds, drags, turns
// the wheel, lets time pass (wait lets that many milliseconds go by).
class Monkey {
  public:
    Monkey(unsigned seed, std::function<void(int)> wait) : random_(seed), wait_(std::move(wait)) {}

    void Act(Program& program);

  private:
    void Press(Program& program);
    Pixel Anywhere();
    Pixel OnSomething(Program& program);
    void Hold(Program& program);

    SeededRandom random_;
    std::function<void(int)> wait_;
    Pixel at_;
};

}  // namespace onze
