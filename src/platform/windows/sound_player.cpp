#include "platform/windows/sound_player.h"

#include <windows.h>

#include <cstring>
#include <span>

#include "platform/windows/files.h"

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

void SoundPlayer::Stop() {
    PlaySoundW(nullptr, nullptr, 0);
}

// Played from memory, because the player would look for "5.wav" when it is given a file named "5".
void SoundPlayer::Start(const std::filesystem::path& file) {
    Stop();
    playing_ = ReadWholeFile(file).value_or(std::vector<std::byte>());
    if (!IsWhole(playing_)) return;
    PlaySoundW(reinterpret_cast<const wchar_t*>(playing_.data()), nullptr,
               SND_MEMORY | SND_ASYNC | SND_NODEFAULT);
}
