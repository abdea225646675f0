// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include <chrono>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

namespace platform {

/// The program's sound output. Without a device, a sound server or a file, it plays nothing. It throws no exceptions
/// and reports no failures. Use it from one thread only.
struct Sound {
    Sound() = default;
    Sound(const Sound&) = delete;
    Sound(Sound&&) = delete;
    Sound& operator=(const Sound&) = delete;
    Sound& operator=(Sound&&) = delete;
    virtual ~Sound() = default;

    /// Opens the device in the background, so that the next sound starts without delay. Returns at once.
    virtual void warmUp() = 0;

    /// Plays a WAV file and returns after the sound is heard. `name` is a file name without a folder. `play` waits at
    /// most for the length of the sound plus `SoundTiming::grace`. It returns at once without playing if the file is
    /// missing or cannot be played, if the device is busy, or if an earlier sound still hangs in the device.
    virtual void play(const std::string& name) = 0;
};

/// Times for which the sound output waits.
struct SoundTiming {
    /// `play` waits at most for the length of the sound plus this time. The destructor waits at most for this time.
    std::chrono::milliseconds grace = std::chrono::milliseconds(500);
    /// The device is closed after this time without a sound.
    std::chrono::milliseconds closeAfter = std::chrono::seconds(5);
};

/// Makes a sound output. Each time it plays a sound, it reads the first regular file of that name in `folders`. A sound
/// or `warmUp` opens the device if it is closed. The destructor closes the device, or leaves it open if it hangs. In a
/// program with several sound outputs, the first that is used keeps the others silent until it is destroyed.
std::unique_ptr<Sound> makeSound(std::vector<std::filesystem::path> folders, SoundTiming timing = {});

}  // namespace platform
