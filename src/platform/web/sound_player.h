#pragma once

#include "platform/web/browser.h"
#include "services/sound_player.h"

namespace onze {

// Silent until the page was touched first, as browsers want it.
class WebSoundPlayer final : public SoundPlayer {
  public:
    void Stop() override { browser::StopSound(); }
    void Start(std::string_view name) override { browser::StartSound(name.data(), name.size()); }
};

}  // namespace onze
