#pragma once

#include <SDL.h>

namespace onze {

// The part of SDL that plays sounds, under its own names. It is loaded when it is first needed, and not
// linked: with all the sound systems that it brings along it would double the time that the program takes to
// start.
class Sdl {
  public:
    Sdl();

    // Without the library nothing below may be called.
    explicit operator bool() const { return library_ != nullptr; }

  private:
    struct Symbol {
        void* address;
        template <class Function>
        operator Function*() const {
            return reinterpret_cast<Function*>(address);
        }
    };
    Symbol Find(const char* name) const;

    void* const library_;  // never unloaded; before what is found in it

  public:
    decltype(&::SDL_SetHint) SetHint = Find("SDL_SetHint");
    decltype(&::SDL_InitSubSystem) InitSubSystem = Find("SDL_InitSubSystem");
    decltype(&::SDL_QuitSubSystem) QuitSubSystem = Find("SDL_QuitSubSystem");
    decltype(&::SDL_TLSCleanup) TLSCleanup = Find("SDL_TLSCleanup");
    decltype(&::SDL_RWFromFile) RWFromFile = Find("SDL_RWFromFile");
    decltype(&::SDL_LoadWAV_RW) LoadWAV_RW = Find("SDL_LoadWAV_RW");
    decltype(&::SDL_FreeWAV) FreeWAV = Find("SDL_FreeWAV");
    decltype(&::SDL_OpenAudioDevice) OpenAudioDevice = Find("SDL_OpenAudioDevice");
    decltype(&::SDL_CloseAudioDevice) CloseAudioDevice = Find("SDL_CloseAudioDevice");
    decltype(&::SDL_PauseAudioDevice) PauseAudioDevice = Find("SDL_PauseAudioDevice");
    decltype(&::SDL_GetAudioDeviceStatus) GetAudioDeviceStatus = Find("SDL_GetAudioDeviceStatus");
    decltype(&::SDL_QueueAudio) QueueAudio = Find("SDL_QueueAudio");
    decltype(&::SDL_ClearQueuedAudio) ClearQueuedAudio = Find("SDL_ClearQueuedAudio");
    decltype(&::SDL_GetQueuedAudioSize) GetQueuedAudioSize = Find("SDL_GetQueuedAudioSize");
};

}  // namespace onze
