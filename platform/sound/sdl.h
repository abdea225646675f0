// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

// SDL must not replace the program's main().
#define SDL_MAIN_HANDLED
#include <SDL.h>

namespace platform {

/// The functions of SDL that the program uses, without the prefix SDL_. They are loaded on first use. If they
/// were loaded at the start, loading SDL and its dependencies would take a fifth of the launch time.
struct Sdl {
    decltype(&SDL_InitSubSystem) InitSubSystem;
    decltype(&SDL_QuitSubSystem) QuitSubSystem;
    decltype(&SDL_SetMainReady) SetMainReady;
    decltype(&SDL_SetHint) SetHint;
    decltype(&SDL_TLSCleanup) TLSCleanup;
    decltype(&SDL_PumpEvents) PumpEvents;
    decltype(&SDL_HasEvent) HasEvent;
    decltype(&SDL_FlushEvents) FlushEvents;
    decltype(&SDL_OpenAudioDevice) OpenAudioDevice;
    decltype(&SDL_CloseAudioDevice) CloseAudioDevice;
    decltype(&SDL_PauseAudioDevice) PauseAudioDevice;
    decltype(&SDL_GetAudioDeviceStatus) GetAudioDeviceStatus;
    decltype(&SDL_QueueAudio) QueueAudio;
    decltype(&SDL_GetQueuedAudioSize) GetQueuedAudioSize;
    decltype(&SDL_RWFromConstMem) RWFromConstMem;
    decltype(&SDL_LoadWAV_RW) LoadWAV_RW;
    decltype(&SDL_FreeWAV) FreeWAV;
    decltype(&SDL_BuildAudioCVT) BuildAudioCVT;
    decltype(&SDL_ConvertAudio) ConvertAudio;
};

/// Returns the functions, or null if SDL is not installed. The first call loads SDL. Safe to call from any thread.
const Sdl* sdl();

}  // namespace platform
