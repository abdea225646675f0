// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#include "platform/sound/sound.h"

#include <array>
#include <csignal>
#include <cstdlib>
#include <fstream>
#include <future>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/sound/sound_file.h"
#include "tests/platform/sound/wav_file.h"

namespace {

using namespace platform;
namespace fs = std::filesystem;
using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

/// The bytes of a stereo sound without a silent frame.
std::string ramp(int first, int frames) {
    std::string samples;
    for (int i = first; i < first + frames; ++i) {
        samples += bytesOf(i | -i << 16);
    }
    return samples;
}

/// What was recorded, without the silent frames.
std::string heardIn(const fs::path& recording) {
    std::ifstream file(recording, std::ios::binary);
    std::string samples;
    for (std::array<char, 4> frame{}; file.read(frame.data(), frame.size());) {
        samples.append(frame.data(), frame == std::array<char, 4>{} ? 0 : frame.size());
    }
    return samples;
}

struct SoundTest : testing::Test {
    SoundTest() {
        fs::create_directories(folder);
        std::ofstream(folder / "short.wav") << WavFile{shortSound}.bytes();
        std::ofstream(folder / "long.wav") << WavFile{ramp(1, 26460)}.bytes();
    }
    ~SoundTest() override { fs::remove_all(folder); }

    /// Selects the device for the next sound. SDL's disk driver records to a file, here 5 times as fast as it plays.
    static void useDevice(const char* driver, const fs::path& recording = {}) {
        setenv("SDL_AUDIODRIVER", driver, 1);
        setenv("SDL_DISKAUDIOFILE", recording.c_str(), 1);
        setenv("SDL_DISKAUDIODELAY", "1", 1);
    }

    /// Selects a FIFO as the device: it hangs in opening until the test opens it too, and in writing until the test
    /// reads.
    void useFifo(SoundTiming timing) {
        EXPECT_EQ(mkfifo(speaker.c_str(), 0600), 0);
        useDevice("disk", speaker);
        sound = makeSound({folder}, timing);
    }

    const fs::path folder = fs::path(testing::TempDir()) / ("sound-" + std::to_string(getpid()));
    const fs::path speaker = folder / "speaker";
    const std::string shortSound = ramp(10000, 2205);
    /// Waits long, because on a busy machine a sound device is slow.
    std::unique_ptr<Sound> sound = makeSound({folder}, {.grace = 60s, .closeAfter = 1h});
};

TEST_F(SoundTest, PlaysForTheLengthOfTheSoundAndLeavesSignalsAlone) {
    useDevice("dummy");
    const auto begin = Clock::now();
    sound->play("long.wav");
    EXPECT_GE(Clock::now() - begin, 600ms + 11ms) << "with the two buffers that follow the empty queue";

    struct sigaction action {};
    ASSERT_EQ(sigaction(SIGTERM, nullptr, &action), 0);
    EXPECT_EQ(action.sa_handler, SIG_DFL) << "with the device open, signals must still end the program";
}

TEST_F(SoundTest, ReadsTheFirstRegularFileOfTheName) {
    const std::vector<fs::path> folders{folder / "absent", folder / "first", folder};
    fs::create_directories(folder / "first" / "short.wav");
    ASSERT_EQ(mkfifo((folder / "first" / "long.wav").c_str(), 0600), 0);
    EXPECT_EQ(readSoundFile(folders, "short.wav"), WavFile{shortSound}.bytes());
    EXPECT_EQ(readSoundFile(folders, "long.wav"), WavFile{ramp(1, 26460)}.bytes());
    EXPECT_EQ(readSoundFile(folders, "missing.wav"), "");
    std::ofstream(folder / "large.wav").close();
    fs::resize_file(folder / "large.wav", largestSoundFile);
    EXPECT_EQ(readSoundFile(folders, "large.wav").size(), largestSoundFile);
    fs::resize_file(folder / "large.wav", largestSoundFile + 1);
    EXPECT_EQ(readSoundFile(folders, "large.wav"), "");
}

TEST_F(SoundTest, TriesABusyOrUnpluggedDeviceAgainAndThenPlaysWholeSoundsInOrder) {
    for (const fs::path& recording : {fs::path("/missing/speaker"), fs::path("/dev/full"), speaker}) {
        useDevice("disk", recording);
        sound->warmUp();
        sound->play("short.wav");
    }
    std::ofstream(folder / "short.wav") << WavFile{ramp(5, 7)}.bytes();
    sound->play("short.wav");
    sound.reset();
    EXPECT_EQ(heardIn(speaker), shortSound + ramp(5, 7)) << "each sound is read when it is played";
}

TEST_F(SoundTest, ClosesTheDeviceWhenNoSoundFollows) {
    useFifo({.grace = 60s, .closeAfter = 1ms});
    auto heard = std::async(std::launch::async, heardIn, speaker);
    sound->play("short.wav");
    EXPECT_EQ(heard.get(), shortSound) << "the end of the recording comes with the closing";
}

TEST_F(SoundTest, GivesUpADeviceThatHangsUntilItAnswers) {
    useFifo({.grace = 3s, .closeAfter = 1h});
    const auto begin = Clock::now();
    sound->play("long.wav");
    EXPECT_GE(Clock::now() - begin, 3s + 600ms);

    const fs::path copy = folder / "copy";
    auto listener = std::async(std::launch::async, [&] { std::ofstream(copy) << std::ifstream(speaker).rdbuf(); });
    while (heardIn(copy).empty() && Clock::now() - begin < 60s) {
        sound->play("short.wav");
    }
    sound.reset();
    listener.wait();
    EXPECT_EQ(heardIn(copy).substr(0, shortSound.size()), shortSound) << "a sound given up must not be heard later";
}

TEST_F(SoundTest, LeavesADeviceBehindThatHangs) {
    useFifo({.grace = 3s});
    const int listener = open(speaker.c_str(), O_RDONLY | O_NONBLOCK);
    ASSERT_GT(fcntl(listener, F_SETPIPE_SZ, 4096), 0) << "so that a few buffers fill it";
    sound->play("short.wav");
    const auto begin = Clock::now();
    for (int i = 0; i < 20; ++i) {
        sound->play("short.wav");
    }
    sound.reset();
    EXPECT_LT(Clock::now() - begin, 3s) << "neither a further sound nor the end waits";
    EXPECT_EQ(heardIn(speaker), shortSound) << "once somebody listens";
    close(listener);
}

}  // namespace
