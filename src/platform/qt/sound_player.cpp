#include "platform/qt/sound_player.h"

#include <SDL.h>
#include <alsa/asoundlib.h>

#include <chrono>
#include <utility>

namespace {

using Clock = std::chrono::steady_clock;

// An open device wakes up for every buffer, even a silent one: without a sound for this time it is closed.
constexpr std::chrono::seconds kIdleTime{3};
// Looking for a device in vain costs more than a child's next click should.
constexpr std::chrono::seconds kRetryTime{10};
constexpr Uint16 kBufferSamples = 1024;  // 23 ms at 44100 Hz

// A wave file's samples.
class Wave {
  public:
    explicit Wave(const std::filesystem::path& file) {
        if (!SDL_LoadWAV(file.c_str(), &spec, &bytes, &length)) bytes = nullptr;
    }
    ~Wave() { SDL_FreeWAV(bytes); }
    Wave(const Wave&) = delete;
    Wave& operator=(const Wave&) = delete;

    SDL_AudioSpec spec{};
    Uint8* bytes = nullptr;
    Uint32 length = 0;
};

void SayNothing(const char*, int, const char*, int, const char*, ...) {}

// The sound device, open only while there is something to hear. SDL finds PipeWire, PulseAudio and ALSA by
// itself, and lets a thread of ours wait for them; QSoundEffect waits in the event loop, which a sound server
// that accepts and does not answer then stops for good.
class Device {
  public:
    Device() {
        snd_lib_error_set_handler(SayNothing);
        SDL_SetHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1");
        SDL_SetHint(SDL_HINT_AUDIO_DEVICE_APP_NAME, "Onze Tables");
    }
    ~Device() {
        Close();
        SDL_TLSCleanup();  // of a thread that SDL did not start
    }
    Device(const Device&) = delete;
    Device& operator=(const Device&) = delete;

    bool IsOpen() const { return id_ != 0; }
    void Silence() { SDL_ClearQueuedAudio(id_); }
    void Play(const std::filesystem::path& file);
    void CloseIfSilent() {
        if (SDL_GetQueuedAudioSize(id_) == 0) Close();
    }

  private:
    bool Takes(const SDL_AudioSpec& spec) const;
    void Open(const SDL_AudioSpec& spec);
    void Close();

    SDL_AudioDeviceID id_ = 0;
    SDL_AudioSpec spec_{};
    Clock::time_point retry_ = Clock::time_point::min();  // no device is looked for before
};

void Device::Play(const std::filesystem::path& file) {
    Silence();
    const Wave wave(file);
    if (!wave.bytes) return;
    if (!Takes(wave.spec)) {
        Close();
        Open(wave.spec);
    }
    SDL_QueueAudio(id_, wave.bytes, wave.length);
    SDL_PauseAudioDevice(id_, 0);
}

// A device that was unplugged has stopped by itself.
bool Device::Takes(const SDL_AudioSpec& spec) const {
    return IsOpen() && SDL_GetAudioDeviceStatus(id_) != SDL_AUDIO_STOPPED && spec.freq == spec_.freq &&
           spec.format == spec_.format && spec.channels == spec_.channels;
}

void Device::Open(const SDL_AudioSpec& spec) {
    if (Clock::now() < retry_) return;
    retry_ = Clock::now() + kRetryTime;
    if (SDL_InitSubSystem(SDL_INIT_AUDIO) != 0) return;
    spec_ = spec;
    spec_.samples = kBufferSamples;
    id_ = SDL_OpenAudioDevice(nullptr, 0, &spec_, nullptr, 0);
    if (IsOpen()) {
        retry_ = Clock::time_point::min();
    } else {
        SDL_QuitSubSystem(SDL_INIT_AUDIO);
    }
}

void Device::Close() {
    if (!IsOpen()) return;
    Silence();  // closing waits for what is still to be heard
    SDL_CloseAudioDevice(id_);
    SDL_QuitSubSystem(SDL_INIT_AUDIO);
    id_ = 0;
}

}  // namespace

void SoundPlayer::Ask(std::filesystem::path file) {
    if (!worker_.joinable()) {
        if (file.empty()) return;
        worker_ = std::jthread([this](const std::stop_token& stop) { Work(stop); });
    }
    const std::lock_guard lock(mutex_);
    request_ = std::move(file);
    asked_.notify_one();
}

void SoundPlayer::Work(const std::stop_token& stop) {
    Device device;
    while (!stop.stop_requested()) {
        const auto request = NextRequest(stop, device.IsOpen());
        if (!request) {
            device.CloseIfSilent();
        } else if (request->empty()) {
            device.Silence();
        } else {
            device.Play(*request);
        }
    }
}

std::optional<std::filesystem::path> SoundPlayer::NextRequest(const std::stop_token& stop, bool give_up) {
    const auto asked = [this] { return request_.has_value(); };
    std::unique_lock lock(mutex_);
    if (give_up) {
        asked_.wait_for(lock, stop, kIdleTime, asked);
    } else {
        asked_.wait(lock, stop, asked);
    }
    return std::exchange(request_, std::nullopt);
}
