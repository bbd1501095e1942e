#include "platform/qt/sound_player.h"

#include <chrono>
#include <utility>

#include "platform/qt/sdl.h"

namespace onze {

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
    Wave(const Sdl& sdl, const std::filesystem::path& file) : sdl_(sdl) {
        if (!sdl.LoadWAV_RW(sdl.RWFromFile(file.c_str(), "rb"), 1, &spec, &bytes, &length)) bytes = nullptr;
    }
    ~Wave() { sdl_.FreeWAV(bytes); }
    Wave(const Wave&) = delete;
    Wave& operator=(const Wave&) = delete;

    SDL_AudioSpec spec{};
    Uint8* bytes = nullptr;
    Uint32 length = 0;

  private:
    const Sdl& sdl_;
};

// The sound device, open only while there is something to hear. SDL finds PipeWire, PulseAudio and ALSA by
// itself, and lets a thread of ours wait for them; QSoundEffect waits in the event loop, which a sound server
// that accepts and does not answer then stops for good.
class Device {
  public:
    explicit Device(const Sdl& sdl) : sdl_(sdl) {}
    ~Device() {
        Close();
        sdl_.TLSCleanup();  // of a thread that SDL did not start
    }
    Device(const Device&) = delete;
    Device& operator=(const Device&) = delete;

    bool IsOpen() const { return id_ != 0; }
    void Silence() { sdl_.ClearQueuedAudio(id_); }
    void Play(const std::filesystem::path& file);
    void CloseIfSilent() {
        if (sdl_.GetQueuedAudioSize(id_) == 0) Close();
    }

  private:
    bool Takes(const SDL_AudioSpec& spec) const;
    void Open(const SDL_AudioSpec& spec);
    void Close();

    const Sdl& sdl_;
    SDL_AudioDeviceID id_ = 0;
    SDL_AudioSpec spec_{};
    Clock::time_point retry_ = Clock::time_point::min();  // no device is looked for before
};

void Device::Play(const std::filesystem::path& file) {
    Silence();
    const Wave wave(sdl_, file);
    if (!wave.bytes) return;
    if (!Takes(wave.spec)) {
        Close();
        Open(wave.spec);
    }
    sdl_.QueueAudio(id_, wave.bytes, wave.length);
    sdl_.PauseAudioDevice(id_, 0);
}

// A device that was unplugged has stopped by itself.
bool Device::Takes(const SDL_AudioSpec& spec) const {
    return IsOpen() && sdl_.GetAudioDeviceStatus(id_) != SDL_AUDIO_STOPPED && spec.freq == spec_.freq &&
           spec.format == spec_.format && spec.channels == spec_.channels;
}

void Device::Open(const SDL_AudioSpec& spec) {
    if (Clock::now() < retry_) return;
    retry_ = Clock::now() + kRetryTime;
    if (sdl_.InitSubSystem(SDL_INIT_AUDIO) != 0) return;
    spec_ = spec;
    spec_.samples = kBufferSamples;
    id_ = sdl_.OpenAudioDevice(nullptr, 0, &spec_, nullptr, 0);
    if (IsOpen()) {
        retry_ = Clock::time_point::min();
    } else {
        sdl_.QuitSubSystem(SDL_INIT_AUDIO);
    }
}

void Device::Close() {
    if (!IsOpen()) return;
    Silence();  // closing waits for what is still to be heard
    sdl_.CloseAudioDevice(id_);
    sdl_.QuitSubSystem(SDL_INIT_AUDIO);
    id_ = 0;
}

}  // namespace

void SdlSoundPlayer::Ask(std::filesystem::path file) {
    if (!worker_.joinable()) {
        if (file.empty()) return;
        worker_ = std::jthread([this](const std::stop_token& stop) { Work(stop); });
    }
    const std::lock_guard lock(mutex_);
    request_ = std::move(file);
    asked_.notify_one();
}

void SdlSoundPlayer::Work(const std::stop_token& stop) {
    const Sdl sdl;
    if (!sdl) return;
    Device device(sdl);
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

std::optional<std::filesystem::path> SdlSoundPlayer::NextRequest(const std::stop_token& stop, bool give_up) {
    const auto asked = [this] { return request_.has_value(); };
    std::unique_lock lock(mutex_);
    if (give_up) {
        asked_.wait_for(lock, stop, kIdleTime, asked);
    } else {
        asked_.wait(lock, stop, asked);
    }
    return std::exchange(request_, std::nullopt);
}

}  // namespace onze
