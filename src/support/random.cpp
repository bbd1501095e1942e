#include "support/random.h"

#include <chrono>

namespace onze {

std::int64_t ClockRandom::SystemClock() {
    return std::chrono::system_clock::now().time_since_epoch().count();
}

// Some systems' clocks stand still for 16 ms, in which a whole screen is prepared: the number of the
// reseeding makes a sequence of its own for each of its exercises.
void ClockRandom::Randomize() {
    const auto now = static_cast<std::uint64_t>(clock_());
    std::seed_seq seed{static_cast<std::uint32_t>(now), static_cast<std::uint32_t>(now >> 32), ++reseedings_};
    engine_.seed(seed);
}

int ClockRandom::Draw(int bound) {
    return std::uniform_int_distribution<int>(0, bound - 1)(engine_);
}

}  // namespace onze
