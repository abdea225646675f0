// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#include <algorithm>
#include <cmath>

#include "platform/sound/sound_file.h"
#include "tests/fuzz/target.h"
#include "tests/platform/sound/wav_file.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::string file(data, data + size);
    const platform::Samples samples = platform::decodeWav(file);
    law(samples.size() % platform::samplesChannels == 0, "samples come in whole frames");
    law(samples == platform::decodeWav(file), "the same bytes are the same sound");

    // The plain file with the numbers of this header, which may be much longer than what we were given.
    WavFile plain{.between = {"note\1\0\0\0x\0", 10}};
    std::uint32_t length = 0;
    file.resize(std::max<std::size_t>(size, 44));
    std::memcpy(&plain.channels, &file[22], sizeof plain.channels);
    std::memcpy(&plain.rate, &file[24], sizeof plain.rate);
    std::memcpy(&length, &file[40], sizeof length);
    plain.bits = file[34] == 16 ? 16 : 8;
    plain.data = std::string(length % 600'000, '@');

    const bool isKnown = plain.channels >= 1 && plain.channels <= 2 && plain.rate >= 8000 && plain.rate <= 48000;
    const int frames = static_cast<int>(plain.data.size()) / std::max(plain.channels * plain.bits / 8, 1);
    const double seconds = frames / std::max<double>(plain.rate, 1);
    const auto sound = platform::decodeWav(plain.bytes());
    const auto played = static_cast<double>(sound.size()) / platform::samplesChannels;
    law(isKnown && seconds <= 10 ? std::abs(played - seconds * platform::samplesRate) <= 1 : sound.empty(),
        "what is fit plays to its end, and nothing else");
    // A 16-bit "@@" and an 8-bit "@" are half as loud as can be.
    law(played < 200 || std::abs(std::abs(sound[sound.size() / 2]) - 16'400) < 200, "it is as loud as it was");
    const std::string cut = plain.bytes().substr(0, 53 + plain.data.size() - length / 600'000 % 50);
    law(platform::decodeWav(cut).empty(), "what is cut short does not play");
    return 0;
}
