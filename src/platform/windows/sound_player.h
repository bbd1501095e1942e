#pragma once

#include <cstddef>
#include <vector>

#include "services/data_files.h"
#include "services/sound_player.h"

namespace onze {

// Plays through the system's wave player.
class WindowsSoundPlayer final : public SoundPlayer {
  public:
    explicit WindowsSoundPlayer(DataFiles& files) : files_(files) {}
    WindowsSoundPlayer(const WindowsSoundPlayer&) = delete;
    WindowsSoundPlayer& operator=(const WindowsSoundPlayer&) = delete;
    ~WindowsSoundPlayer() override { Silence(); }

    void Stop() override { Silence(); }
    void Start(std::string_view name) override;

  private:
    static void Silence();

    DataFiles& files_;
    // The player reads from here as long as it plays.
    std::vector<std::byte> playing_;
};

}  // namespace onze
