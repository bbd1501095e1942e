#include "platform/qt/sdl.h"

#include <dlfcn.h>

namespace onze {

namespace {

using AlsaErrorHandler = void (*)(const char*, int, const char*, int, const char*, ...);

void SayNothing(const char*, int, const char*, int, const char*, ...) {}

}  // namespace

Sdl::Sdl() : library_(dlopen("libSDL2-2.0.so.0", RTLD_NOW | RTLD_LOCAL)) {
    if (!library_) return;
    // ALSA, where SDL brings it along, writes to the error stream when it finds no device.
    int (*const set_alsa_error_handler)(AlsaErrorHandler) = Find("snd_lib_error_set_handler");
    if (set_alsa_error_handler) set_alsa_error_handler(SayNothing);
    SetHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1");
    SetHint(SDL_HINT_AUDIO_DEVICE_APP_NAME, "Onze Tables");
}

Sdl::Symbol Sdl::Find(const char* name) const {
    return {library_ ? dlsym(library_, name) : nullptr};
}

}  // namespace onze
