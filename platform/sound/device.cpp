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

// A move waits for its sound and for two buffers more. So the buffers are small.
constexpr std::size_t wantedFrames = 256;

SoundDevice openDevice() {
    if (sdl() == nullptr) {
        return {};
    }
    sdl()->SetMainReady();
    sdl()->SetHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1");
    if (sdl()->InitSubSystem(SDL_INIT_AUDIO) != 0) {
        return {};
    }
    SDL_AudioSpec wanted{};
    wanted.freq = samplesRate;
    wanted.format = AUDIO_S16SYS;
    wanted.channels = samplesChannels;
    wanted.samples = Uint16{wantedFrames};
    SDL_AudioSpec obtained{};
    const SDL_AudioDeviceID number =
        sdl()->OpenAudioDevice(nullptr, 0, &wanted, &obtained, SDL_AUDIO_ALLOW_SAMPLES_CHANGE);
    if (number == 0) {
        sdl()->QuitSubSystem(SDL_INIT_AUDIO);
        return {};
    }
    sdl()->PauseAudioDevice(number, 0);
    return {number, obtained.samples};
}

void enqueue(SoundDevice device, std::span<const std::int16_t> samples) {
    sdl()->QueueAudio(device.number, samples.data(), static_cast<Uint32>(samples.size_bytes()));
}

// SDL 2 reports a lost device by the device's status. sdl2-compat, the SDL 2 API on top of SDL 3, reports the loss only
// by an event.
bool isLost(SoundDevice device) {
    sdl()->PumpEvents();
    const bool removed = sdl()->HasEvent(SDL_AUDIODEVICEREMOVED) == SDL_TRUE;
    sdl()->FlushEvents(SDL_FIRSTEVENT, SDL_LASTEVENT);
    return removed || sdl()->GetAudioDeviceStatus(device.number) == SDL_AUDIO_STOPPED;
}

}  // namespace

SoundDevice openSoundDevice(SoundDevice device) {
    if (device.number != 0 && !isLost(device)) {
        return device;
    }
    closeSoundDevice(device);
    return openDevice();
}

void playThrough(SoundDevice device, const Samples& samples) {
    // SDL's queue becomes empty two buffers before the last sample is heard. So two buffers of silence follow the
    // sound: the queue is then empty only when the sound is over.
    static constexpr std::array<std::int16_t, wantedFrames * samplesChannels> silence{};
    enqueue(device, samples);
    for (std::size_t frames = 0; frames < 2 * device.bufferFrames; frames += wantedFrames) {
        enqueue(device, silence);
    }
    while (const Uint32 queuedBytes = sdl()->GetQueuedAudioSize(device.number)) {
        std::this_thread::sleep_for(playingTime(queuedBytes / sizeof(std::int16_t)) + 1ms);
    }
}

void closeSoundDevice(SoundDevice device) {
    if (device.number != 0) {
        sdl()->CloseAudioDevice(device.number);
        sdl()->QuitSubSystem(SDL_INIT_AUDIO);
    }
    if (sdl() != nullptr) {
        sdl()->TLSCleanup();
    }
}

}  // namespace platform
