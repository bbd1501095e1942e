#pragma once

#include <condition_variable>
#include <filesystem>
#include <mutex>
#include <optional>
#include <thread>

#include "services/sound_player.h"

namespace onze {

// Plays wave files, one at a time. A file or a sound device that does not work is silence. Both calls return
// at once: everything that could take time, such as a sound server that does not answer, is a thread's work.
class SdlSoundPlayer final : public SoundPlayer {
  public:
    explicit SdlSoundPlayer(std::filesystem::path folder) : folder_(std::move(folder)) {}

    void Stop() override { Ask({}); }
    void Start(std::string_view name) override { Ask(folder_ / name); }

  private:
    // An empty path asks for silence.
    void Ask(std::filesystem::path file);
    void Work(const std::stop_token& stop);
    // Waits for it, for a while only where giving up is meant.
    std::optional<std::filesystem::path> NextRequest(const std::stop_token& stop, bool give_up);

    const std::filesystem::path folder_;
    std::mutex mutex_;
    std::condition_variable_any asked_;
    std::optional<std::filesystem::path> request_;
    std::jthread worker_;  // last: it ends before what it uses; runs from the first sound on
};

}  // namespace onze
