// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#include "platform/sound/sound_file.h"

#include <algorithm>
#include <cstdio>
#include <memory>
#include <numeric>
#include <optional>
#include <span>

#include <fcntl.h>
#include <sys/stat.h>

#include "platform/sound/sdl.h"

namespace platform {
namespace {

struct Closer {
    void operator()(std::FILE* file) const { std::fclose(file); }
};

std::optional<std::string> readRegularFile(const std::filesystem::path& path) {
    const int descriptor = open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    const std::unique_ptr<std::FILE, Closer> file(fdopen(descriptor, "rb"));
    struct stat status {};
    if (!file || fstat(descriptor, &status) != 0 || !S_ISREG(status.st_mode)) {
        return std::nullopt;
    }
    std::string bytes;
    if (const auto size = static_cast<std::size_t>(status.st_size); size <= largestSoundFile) {
        bytes.resize(size);
        bytes.resize(std::fread(bytes.data(), 1, size, file.get()));
    }
    return bytes;
}

constexpr int longestSeconds = 10;
constexpr int mostChannels = 2;

std::uint32_t littleEndian(std::string_view bytes) {
    return std::accumulate(bytes.rbegin(), bytes.rend(), 0U, [](std::uint32_t number, char byte) {
        return number << 8 | static_cast<unsigned char>(byte);
    });
}

/// Whether the file is complete and has at most two channels. SDL does not check this: it allocates the length that the
/// data chunk claims, up to 4 GiB, and accepts a file that is cut short. sdl2-compat, the SDL 2 API on top of SDL 3,
/// reads only the low byte of the number of channels.
bool isSafeForSdl(std::string_view file) {
    constexpr std::size_t riffHeader = 12;
    constexpr std::size_t chunkHeader = 8;
    if (file.size() < riffHeader || file.substr(0, 4) != "RIFF" || file.substr(8, 4) != "WAVE") {
        return false;
    }
    std::string_view rest = file.substr(riffHeader);
    while (rest.size() >= chunkHeader) {
        const std::string_view name = rest.substr(0, 4);
        const std::size_t length = littleEndian(rest.substr(4, 4));
        rest.remove_prefix(chunkHeader);
        if (name == "data") {
            return length <= rest.size();
        }
        if (name == "fmt " && rest.size() >= 4 && littleEndian(rest.substr(2, 2)) > mostChannels) {
            return false;
        }
        rest.remove_prefix(std::min(length + length % 2, rest.size()));
    }
    return false;
}

Uint32 frameSize(const SDL_AudioSpec& audio) {
    return audio.channels * SDL_AUDIO_BITSIZE(audio.format) / 8U;
}

bool isPlayable(const SDL_AudioSpec& audio, Uint32 bytes) {
    if (audio.channels < 1 || audio.channels > mostChannels || audio.freq < 8000 || audio.freq > 48000) {
        return false;
    }
    return bytes / frameSize(audio) <= static_cast<Uint32>(audio.freq) * longestSeconds;
}

/// Does not use SDL_AudioStream: in SDL 2.26 it loses up to 512 frames at the end of a sound that it resamples.
Samples convert(const SDL_AudioSpec& audio, std::span<const Uint8> bytes) {
    // SDL cuts the data to whole frames of the size in the header. If that size is wrong, the data may end in the
    // middle of a real frame.
    bytes = bytes.first(bytes.size() - bytes.size() % frameSize(audio));
    SDL_AudioCVT conversion{};
    if (sdl()->BuildAudioCVT(&conversion, audio.format, audio.channels, audio.freq, AUDIO_S16SYS, samplesChannels,
                             samplesRate) < 0) {
        return {};
    }
    const std::size_t roomInBytes = bytes.size() * static_cast<std::size_t>(conversion.len_mult);
    Samples samples((roomInBytes + 1) / sizeof(Samples::value_type));
    conversion.buf = static_cast<Uint8*>(static_cast<void*>(samples.data()));
    conversion.len = static_cast<int>(bytes.size());
    std::copy(bytes.begin(), bytes.end(), conversion.buf);
    if (sdl()->ConvertAudio(&conversion) != 0) {
        return {};
    }
    samples.resize(static_cast<std::size_t>(conversion.len_cvt) / sizeof(Samples::value_type));
    return samples;
}

}  // namespace

std::string readSoundFile(const std::vector<std::filesystem::path>& folders, const std::string& name) {
    for (const auto& folder : folders) {
        if (auto bytes = readRegularFile(folder / name)) {
            return *std::move(bytes);
        }
    }
    return {};
}

Samples decodeWav(std::string_view file) {
    if (!isSafeForSdl(file) || sdl() == nullptr) {
        return {};
    }
    SDL_AudioSpec audio{};
    Uint8* bytes = nullptr;
    Uint32 length = 0;
    SDL_RWops* source = sdl()->RWFromConstMem(file.data(), static_cast<int>(file.size()));
    if (sdl()->LoadWAV_RW(source, 1, &audio, &bytes, &length) == nullptr) {
        return {};
    }
    const std::unique_ptr<Uint8, decltype(sdl()->FreeWAV)> owner(bytes, sdl()->FreeWAV);
    return isPlayable(audio, length) ? convert(audio, {bytes, length}) : Samples{};
}

std::chrono::milliseconds playingTime(std::size_t samples) {
    constexpr std::size_t samplesPerSecond = std::size_t{samplesRate} * samplesChannels;
    return std::chrono::milliseconds(samples * 1000 / samplesPerSecond);
}

}  // namespace platform
