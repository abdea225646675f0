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

/// The bytes of the first regular file `name` in `folders`. Empty if there is none, or if that file is unreadable or
/// larger than `largestSoundFile`. Does not wait for the writer of a FIFO.
std::string readSoundFile(const std::vector<std::filesystem::path>& folders, const std::string& name);

/// A sound ready to be played: interleaved 16-bit stereo at `samplesRate` frames a second.
using Samples = std::vector<std::int16_t>;
inline constexpr int samplesRate = 44100;
inline constexpr int samplesChannels = 2;

/// Decodes the bytes of a WAV file, less than 2 GiB, to `Samples`. Empty if they are no whole WAV file, or not of 1 or
/// 2 channels, 8 to 48 kHz and at most ten seconds. The size of `file` and those ten seconds limit what is allocated,
/// whatever the header claims.
Samples decodeWav(std::string_view file);

/// The playing time of a number of samples, those of both channels counted, rounded down.
std::chrono::milliseconds playingTime(std::size_t samples);

}  // namespace platform
