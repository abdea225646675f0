// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#include "platform/sound_wav.h"

#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "tests/platform/wav_file.h"

namespace {

using namespace platform;

TEST(DecodeWav, BringsEveryFitFileToOneForm) {
    // "@@" is a 16-bit sample half as loud as can be, and "\xC0" one of eight bits.
    const std::vector<std::pair<WavFile, std::size_t>> filesAndFrames{
        {{"@@@@"}, 1},
        {{std::string(400, '@'), 1}, 200},
        {{std::string(100, '\xC0'), 1, 8}, 100},
        {{std::string(3200, '@'), 2, 16, 8000}, 4410},
        {{std::string(1920, '@'), 2, 16, 48000}, 441},
        {{std::string(441000, '\xC0'), 1, 8}, 441000},
        {{.data = std::string(400, '@'), .between = {"note\1\0\0\0x\0", 10}}, 100},
    };
    for (const auto& [file, frames] : filesAndFrames) {
        const Samples samples = decodeWav(file.bytes());
        ASSERT_EQ(samples.size(), frames * samplesChannels) << file.rate << " Hz, " << file.bits << " bits";
        EXPECT_NEAR(samples[frames / 2 * samplesChannels], 16384, 200);
        EXPECT_NEAR(samples[frames / 2 * samplesChannels + 1], 16384, 200);
    }
}

TEST(DecodeWav, RefusesWhatIsUnfitToPlay) {
    const std::string data(600, '@');
    const std::string whole = WavFile{data}.bytes();
    std::vector<std::pair<std::string, std::string>> cases{
        {"no samples", WavFile{""}.bytes()},
        {"less than a frame", WavFile{"ab"}.bytes()},
        {"an endless chunk before the data", WavFile{.data = data, .between = "note\xFF\xFF\xFF\xFF"}.bytes()},
        {"no channel", WavFile{data, 0}.bytes()},
        {"three channels", WavFile{data, 3}.bytes()},
        {"rate 7999", WavFile{data, 2, 16, 7999}.bytes()},
        {"rate 48001", WavFile{data, 2, 16, 48001}.bytes()},
        {"a frame more than ten seconds", WavFile{std::string(441001, '\xC0'), 1, 8}.bytes()},
    };
    for (std::size_t length = 0; length < whole.size(); ++length) {
        cases.emplace_back("cut to " + std::to_string(length), whole.substr(0, length));
    }
    for (const auto& [name, bytes] : cases) {
        EXPECT_TRUE(decodeWav(bytes).empty()) << name;
    }
}

}  // namespace
