#pragma once

#include <cstdint>
#include <functional>
#include <optional>

namespace onze {

class Stage;

// Runs on_timer when its time has come, again and again until it is stopped, whether its screen is shown or
// not.
class Timer {
  public:
    explicit Timer(Stage& stage);
    Timer(const Timer&) = delete;
    Timer& operator=(const Timer&) = delete;
    ~Timer();

    // First due in this many milliseconds, then the same time after each run.
    void Start(std::int64_t interval_ms);
    void Stop() { due_.reset(); }
    // The tick at which it is next due.
    std::optional<std::int64_t> due() const { return due_; }
    // Runs on_timer, having set the next time first so that on_timer can start anew or stop.
    void Run();

    std::function<void()> on_timer;

  private:
    Stage& stage_;
    std::int64_t interval_ms_ = 0;
    std::optional<std::int64_t> due_;
};

}  // namespace onze
