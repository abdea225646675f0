// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include <chrono>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

namespace platform {

/// The program's sound output. Without a device, a sound server or a file it plays nothing; it never throws, logs or
/// reports a failure. Use it from one thread.
struct Sound {
    Sound() = default;
    Sound(const Sound&) = delete;
    Sound(Sound&&) = delete;
    Sound& operator=(const Sound&) = delete;
    Sound& operator=(Sound&&) = delete;
    virtual ~Sound() = default;

    /// Opens the device in the background, so that the next sound starts without delay. Returns at once.
    virtual void warmUp() = 0;

    /// Plays the WAV file `name`, a file name without a folder, and returns when the player has heard it, at the latest
    /// after its length and `SoundTiming::grace`. Returns at once without playing if the file is missing or cannot be
    /// played, if the device is busy, or if an earlier sound still hangs in the device.
    virtual void play(const std::string& name) = 0;
};

/// How long the sound output waits.
struct SoundTiming {
    /// How much longer than the sound's length `play` waits; also how long destruction waits.
    std::chrono::milliseconds grace = std::chrono::milliseconds(500);
    /// How long the device stays open without a sound.
    std::chrono::milliseconds closeAfter = std::chrono::seconds(5);
};

/// A sound output that reads each sound, each time, from the first of `folders` that has a regular file of its name. It
/// opens the device for the first sound or `warmUp`. Its destructor closes the device, or leaves it behind if it hangs.
/// If a program has several outputs, the first to play keeps the others silent until it is destroyed.
std::unique_ptr<Sound> makeSound(std::vector<std::filesystem::path> folders, SoundTiming timing = {});

}  // namespace platform
