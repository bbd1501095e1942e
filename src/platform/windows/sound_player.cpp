#include "platform/windows/sound_player.h"

#include <windows.h>

#include <cstring>
#include <span>

namespace onze {

namespace {

constexpr std::size_t kChunkHeader = 8;

// The player trusts the size that the file tells of itself, so it must lie within the bytes.
bool IsWhole(std::span<const std::byte> wave) {
    std::uint32_t size = 0;
    if (wave.size() < kChunkHeader + 4) return false;
    std::memcpy(&size, wave.data() + 4, sizeof(size));
    return std::memcmp(wave.data(), "RIFF", 4) == 0 && std::memcmp(wave.data() + 8, "WAVE", 4) == 0 &&
           size <= wave.size() - kChunkHeader;
}

}  // namespace

void WindowsSoundPlayer::Silence() {
    PlaySoundW(nullptr, nullptr, 0);
}

// Played from memory, because the player would look for "5.wav" when it is given a file named "5".
void WindowsSoundPlayer::Start(std::string_view name) {
    Silence();
    playing_ = files_.Read(name).value_or(std::vector<std::byte>());
    if (!IsWhole(playing_)) return;
    PlaySoundW(reinterpret_cast<const wchar_t*>(playing_.data()), nullptr,
               SND_MEMORY | SND_ASYNC | SND_NODEFAULT);
}

}  // namespace onze
