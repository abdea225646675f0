// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <cstdint>

#include "platform/sound/sound_file.h"

namespace platform {

/// A sound device. Each function below may block until the sound server answers, perhaps for ever. Call all of them
/// from the same thread.
struct SoundDevice {
    std::uint32_t number = 0;      ///< the number of the open device, or 0 for no device
    std::size_t bufferFrames = 0;  ///< the size of each of the device's buffers
};

/// Returns `device` if it is open and the system has not lost it. If not, closes `device`, opens a new device and
/// returns the new one. Returns no device if none can be opened.
SoundDevice openSoundDevice(SoundDevice device);

/// Plays the samples on an open device. Returns after the last sample is heard.
void playThrough(SoundDevice device, const Samples& samples);

/// Closes the device if there is one. Also frees the memory that SDL keeps for the calling thread.
void closeSoundDevice(SoundDevice device);

}  // namespace platform
