// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace platform {

/// The one form in which sounds are played: interleaved 16-bit stereo at `samplesRate` frames a second.
using Samples = std::vector<std::int16_t>;
inline constexpr int samplesRate = 44100;
inline constexpr int samplesChannels = 2;

/// The samples of a WAV file that is given as its bytes, less than 2 GiB of them, converted to the form
/// above. Empty if the bytes are no whole WAV file, or not of 1 or 2 channels, 8 to 48 kHz and at most ten
/// seconds. What it allocates is bounded by the number of bytes and those ten seconds, whatever the file
/// claims.
Samples decodeWav(std::string_view file);

/// How long so many samples (those of both channels counted) play, rounded down.
std::chrono::milliseconds playingTime(std::size_t samples);

}  // namespace platform
