#pragma once

#include <cstddef>
#include <filesystem>
#include <vector>

// Plays one wave file at a time through the system's wave player. What cannot be played is silence.
class SoundPlayer {
  public:
    SoundPlayer() = default;
    SoundPlayer(const SoundPlayer&) = delete;
    SoundPlayer& operator=(const SoundPlayer&) = delete;
    ~SoundPlayer() { Stop(); }

    void Stop();
    // Returns at once.
    void Start(const std::filesystem::path& file);

  private:
    // The player reads from here as long as it plays.
    std::vector<std::byte> playing_;
};
