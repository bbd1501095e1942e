#pragma once

#include <string_view>

namespace onze {

// The host's one sound player: at most one sound plays.
class SoundPlayer {
  public:
    virtual ~SoundPlayer() = default;

    // Both return at once.
    virtual void Stop() = 0;
    // Plays the wave file of this name in the data folder; one that cannot be played is silence.
    virtual void Start(std::string_view name) = 0;
};

}  // namespace onze
