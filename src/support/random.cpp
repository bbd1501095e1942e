#include "support/random.h"

#include <chrono>

void ClockRandom::Randomize() {
    const auto now = std::chrono::system_clock::now().time_since_epoch().count();
    std::seed_seq seed{static_cast<unsigned>(now), static_cast<unsigned>(now >> 32)};
    engine_.seed(seed);
}

int ClockRandom::Draw(int bound) {
    return std::uniform_int_distribution<int>(0, bound - 1)(engine_);
}
