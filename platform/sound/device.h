// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>

#include "platform/sound/sound_file.h"

namespace platform {

/// The number of an open sound device, or 0 for no device. Each function below may block until the sound server
/// answers, perhaps for ever. Call all of them from the same thread.
using SoundDevice = std::uint32_t;

/// Returns `device` if it is open and the system has not lost it. If not, closes `device`, opens a new device and
/// returns the new one. Returns 0 if no device can be opened.
SoundDevice openSoundDevice(SoundDevice device);

/// Plays the samples on an open device. Returns after the last sample is heard.
void playThrough(SoundDevice device, const Samples& samples);

/// Closes the device if it is not 0. Also frees the memory that SDL keeps for the calling thread.
void closeSoundDevice(SoundDevice device);

}  // namespace platform
