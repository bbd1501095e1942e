#pragma once

#include <deque>
#include <vector>

#include "support/random.h"

struct ScriptedDraw {
    int bound;
    int value;
};

// Reseeding, where a script expects it.
inline constexpr ScriptedDraw kReseed{0, 0};

// Gives the draws of a script, each of which states the bound it expects. A draw or a reseeding that the
// script does not have at that point fails the test, and so does one left over at the end.
class ScriptedRandom final : public Random {
  public:
    ~ScriptedRandom() override;

    void Expect(const std::vector<ScriptedDraw>& draws) {
        script_.insert(script_.end(), draws.begin(), draws.end());
    }
    bool done() const { return script_.empty(); }

    void Randomize() override;
    int Draw(int bound) override;

  private:
    ScriptedDraw Next();

    std::deque<ScriptedDraw> script_;
};
