// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <cstring>
#include <string>

template <typename Number>
std::string bytesOf(Number number) {
    std::string bytes(sizeof number, '\0');
    std::memcpy(bytes.data(), &number, sizeof number);
    return bytes;
}

/// A file of integer samples, 16-bit stereo at 44.1 kHz unless it says otherwise.
struct WavFile {
    std::string data;
    std::uint16_t channels = 2;
    std::uint16_t bits = 16;
    std::uint32_t rate = 44100;
    std::string between = {};  // chunks before the data

    std::string bytes() const {
        const auto frameSize = static_cast<std::uint16_t>(channels * bits / 8);
        const auto dataSize = static_cast<std::uint32_t>(data.size());
        const std::string chunks = "WAVEfmt " + bytesOf(16) + bytesOf(std::uint16_t{1}) + bytesOf(channels) +
                                   bytesOf(rate) + bytesOf(rate * frameSize) + bytesOf(frameSize) + bytesOf(bits) +
                                   between + "data" + bytesOf(dataSize) + data;
        return "RIFF" + bytesOf(static_cast<std::uint32_t>(chunks.size())) + chunks;
    }
};
