#pragma once

#include <deque>
#include <vector>

#include "support/random.h"

namespace onze {

struct ScriptedDraw {
    int bound;
    int value;
};

using Draws = std::vector<ScriptedDraw>;

// Reseeding, where a script expects it.
inline constexpr ScriptedDraw kReseed{0, 0};

// Gives the draws of a script, each of which states the bound it expects. Whatever the script does not have
// at that point is thrown, which ends the test as failed; draws left over at the end fail it too.
class ScriptedRandom final : public Random {
  public:
    ~ScriptedRandom() override;

    void Expect(const Draws& draws) { script_.insert(script_.end(), draws.begin(), draws.end()); }

    void Randomize() override { Next(0); }
    int Draw(int bound) override { return Next(bound); }

  private:
    int Next(int bound);

    std::deque<ScriptedDraw> script_;
};

}  // namespace onze
