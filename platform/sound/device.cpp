// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#include "platform/sound/device.h"

#include <array>
#include <chrono>
#include <cstdint>
#include <span>
#include <thread>

#include "platform/sound/sdl.h"

namespace platform {
namespace {

using namespace std::chrono_literals;

constexpr std::size_t bufferFrames = 1024;

SoundDevice openDevice() {
    if (sdl() == nullptr) {
        return 0;
    }
    sdl()->SetMainReady();
    sdl()->SetHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1");
    if (sdl()->InitSubSystem(SDL_INIT_AUDIO) != 0) {
        return 0;
    }
    SDL_AudioSpec wanted{};
    wanted.freq = samplesRate;
    wanted.format = AUDIO_S16SYS;
    wanted.channels = samplesChannels;
    wanted.samples = Uint16{bufferFrames};
    const SoundDevice device = sdl()->OpenAudioDevice(nullptr, 0, &wanted, nullptr, 0);
    if (device == 0) {
        sdl()->QuitSubSystem(SDL_INIT_AUDIO);
        return 0;
    }
    sdl()->PauseAudioDevice(device, 0);
    return device;
}

void enqueue(SoundDevice device, std::span<const std::int16_t> samples) {
    sdl()->QueueAudio(device, samples.data(), static_cast<Uint32>(samples.size_bytes()));
}

// SDL 2 reports a lost device by the device's status. sdl2-compat, the SDL 2 API on top of SDL 3, reports the loss only
// by an event.
bool isLost(SoundDevice device) {
    sdl()->PumpEvents();
    const bool removed = sdl()->HasEvent(SDL_AUDIODEVICEREMOVED) == SDL_TRUE;
    sdl()->FlushEvents(SDL_FIRSTEVENT, SDL_LASTEVENT);
    return removed || sdl()->GetAudioDeviceStatus(device) == SDL_AUDIO_STOPPED;
}

}  // namespace

SoundDevice openSoundDevice(SoundDevice device) {
    if (device != 0 && !isLost(device)) {
        return device;
    }
    closeSoundDevice(device);
    return openDevice();
}

void playThrough(SoundDevice device, const Samples& samples) {
    // SDL's queue becomes empty two buffers before the last sample is heard. So two buffers of silence follow the
    // sound: the queue is then empty only when the sound is over.
    static constexpr std::array<std::int16_t, 2 * bufferFrames * samplesChannels> silence{};
    enqueue(device, samples);
    enqueue(device, silence);
    while (const Uint32 queuedBytes = sdl()->GetQueuedAudioSize(device)) {
        std::this_thread::sleep_for(playingTime(queuedBytes / sizeof(std::int16_t)) + 1ms);
    }
}

void closeSoundDevice(SoundDevice device) {
    if (device != 0) {
        sdl()->CloseAudioDevice(device);
        sdl()->QuitSubSystem(SDL_INIT_AUDIO);
    }
    if (sdl() != nullptr) {
        sdl()->TLSCleanup();
    }
}

}  // namespace platform
