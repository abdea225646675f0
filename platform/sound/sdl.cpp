// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#include "platform/sound/sdl.h"

#include "platform/shared_library.h"

namespace platform {
namespace {

void ignoreAlsaError(const char*, int, const char*, int, const char*, ...) {}

// Without a sound card, ALSA would write a message to standard error at each attempt to open a device.
void silenceAlsa() {
    void* library = loadLibrary("libasound.so.2");
    int (*setErrorHandler)(decltype(&ignoreAlsaError)) = nullptr;
    if (library != nullptr && resolve(library, "snd_lib_error_set_handler", setErrorHandler)) {
        setErrorHandler(&ignoreAlsaError);
    }
}

bool load(Sdl& sdl) {
    silenceAlsa();
    // The library is never unloaded: threads that SDL leaves behind may still run its code.
    void* library = loadLibrary("libSDL2-2.0.so.0");
    return library != nullptr && resolve(library, "SDL_InitSubSystem", sdl.InitSubSystem) &&
           resolve(library, "SDL_QuitSubSystem", sdl.QuitSubSystem) &&
           resolve(library, "SDL_SetMainReady", sdl.SetMainReady) && resolve(library, "SDL_SetHint", sdl.SetHint) &&
           resolve(library, "SDL_TLSCleanup", sdl.TLSCleanup) && resolve(library, "SDL_PumpEvents", sdl.PumpEvents) &&
           resolve(library, "SDL_HasEvent", sdl.HasEvent) && resolve(library, "SDL_FlushEvents", sdl.FlushEvents) &&
           resolve(library, "SDL_OpenAudioDevice", sdl.OpenAudioDevice) &&
           resolve(library, "SDL_CloseAudioDevice", sdl.CloseAudioDevice) &&
           resolve(library, "SDL_PauseAudioDevice", sdl.PauseAudioDevice) &&
           resolve(library, "SDL_GetAudioDeviceStatus", sdl.GetAudioDeviceStatus) &&
           resolve(library, "SDL_QueueAudio", sdl.QueueAudio) &&
           resolve(library, "SDL_GetQueuedAudioSize", sdl.GetQueuedAudioSize) &&
           resolve(library, "SDL_RWFromConstMem", sdl.RWFromConstMem) &&
           resolve(library, "SDL_LoadWAV_RW", sdl.LoadWAV_RW) && resolve(library, "SDL_FreeWAV", sdl.FreeWAV) &&
           resolve(library, "SDL_BuildAudioCVT", sdl.BuildAudioCVT) &&
           resolve(library, "SDL_ConvertAudio", sdl.ConvertAudio);
}

}  // namespace

const Sdl* sdl() {
    static Sdl functions{};
    static const bool loaded = load(functions);
    return loaded ? &functions : nullptr;
}

}  // namespace platform
