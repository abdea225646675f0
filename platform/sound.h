// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include <chrono>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

namespace platform {

/// The program's sound output. It tolerates everything: without a device, a sound server or a file it plays
/// nothing, and it never throws, logs or reports. To be used from one thread.
struct Sound {
    Sound() = default;
    Sound(const Sound&) = delete;
    Sound(Sound&&) = delete;
    Sound& operator=(const Sound&) = delete;
    Sound& operator=(Sound&&) = delete;
    virtual ~Sound() = default;

    /// Opens the device in the background, so that the next sound starts without delay. Returns at once.
    virtual void warmUp() = 0;

    /// Plays the WAV file `name`, a bare file name, and returns when it has been heard, at the latest after
    /// its length and `SoundTiming::grace`. Plays nothing, and returns at once, if the file is missing or
    /// unfit, if the device is busy, or if an earlier sound is still stuck in a device that hangs.
    virtual void play(const std::string& name) = 0;
};

/// How patient the sound output is.
struct SoundTiming {
    /// How much longer than the sound's length `play` waits; also how long destruction waits.
    std::chrono::milliseconds grace = std::chrono::milliseconds(500);
    /// How long the device stays open without a sound.
    std::chrono::milliseconds closeAfter = std::chrono::seconds(5);
};

/// Sounds from the first of `folders` that holds the name as a regular file, read afresh each time. The
/// device is opened for the first sound or `warmUp`. Destruction closes it, or leaves it behind if it hangs.
/// Of several outputs in one program, the first to be used keeps the others silent until it is destroyed.
std::unique_ptr<Sound> makeSound(std::vector<std::filesystem::path> folders, SoundTiming timing = {});

}  // namespace platform
