#pragma once

#include "stats/shared_state.h"

namespace onze {

// The counters that an exercise moves. Each call throws RunTimeError, naming the counter, past 32,767.
class Tally {
  public:
    virtual ~Tally() = default;

    virtual void CountExercise() = 0;
    virtual void CountVerdict(bool right) = 0;
};

// Those of the table that is studied.
class TableTally final : public Tally {
  public:
    explicit TableTally(SharedState& shared) : shared_(shared) {}

    void CountExercise() override;
    void CountVerdict(bool right) override;

  private:
    SharedState& shared_;
};

// Those of the exercises screen.
class PuzzleTally final : public Tally {
  public:
    explicit PuzzleTally(Counters& counters) : counters_(counters) {}

    void CountExercise() override;
    void CountVerdict(bool right) override;

  private:
    Counters& counters_;
};

}  // namespace onze
