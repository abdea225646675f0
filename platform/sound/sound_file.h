// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace platform {

/// The size of the largest sound file that is read, in bytes.
inline constexpr std::size_t largestSoundFile = std::size_t{4} << 20;

/// The bytes of the first regular file `name` in `folders` that can be opened. Empty if there is no such file, or if
/// the file is larger than `largestSoundFile`. A FIFO of that name is skipped without waiting for its
/// writer.
std::string readSoundFile(const std::vector<std::filesystem::path>& folders, const std::string& name);

/// A sound ready to be played: interleaved 16-bit stereo at `samplesRate` frames per second.
using Samples = std::vector<std::int16_t>;
inline constexpr int samplesRate = 44100;
inline constexpr int samplesChannels = 2;

/// Decodes a WAV file. `file` holds the bytes of the file, less than 2 GiB. The file must be complete, with 1 or 2
/// channels, 8 to 48 kHz and at most ten seconds. For any other file, the result is empty. A false header causes no
/// large allocation: the size of `file` and the limit of ten seconds bound the memory.
Samples decodeWav(std::string_view file);

/// The playing time of a number of samples, rounded down. `samples` counts both channels.
std::chrono::milliseconds playingTime(std::size_t samples);

}  // namespace platform
