// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>

#include "platform/sound/sound_file.h"

namespace platform {

/// An open sound device, or 0 for none. Each of the functions below may block for as long as the sound server does not
/// answer. Call all of them from one thread.
using SoundDevice = std::uint32_t;

/// Returns `device` if it is open and still present; otherwise closes it and opens a new one. 0 if that fails.
SoundDevice openSoundDevice(SoundDevice device);

/// Plays the samples on an open device and returns when the player has heard the last one.
void playThrough(SoundDevice device, const Samples& samples);

/// Closes the device if it is not 0, and frees what SDL holds for this thread.
void closeSoundDevice(SoundDevice device);

}  // namespace platform
