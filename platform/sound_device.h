// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>

#include "platform/sound_wav.h"

namespace platform {

/// An open sound device, or 0 for none. All of these calls may take as long as the sound server pleases, and
/// all must come from one thread.
using SoundDevice = std::uint32_t;

/// `device` if it is open and still there; otherwise it is closed and a new one opened. 0 if that fails.
SoundDevice openSoundDevice(SoundDevice device);

/// Plays the samples on an open device and returns when the last one has been heard.
void playThrough(SoundDevice device, const Samples& samples);

/// Closes the device if it is not 0, and frees all that SDL keeps for the thread.
void closeSoundDevice(SoundDevice device);

}  // namespace platform
