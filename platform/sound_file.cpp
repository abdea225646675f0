// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#include "platform/sound_file.h"

#include <cstdio>
#include <memory>
#include <optional>

#include <fcntl.h>
#include <sys/stat.h>

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

}  // namespace

std::string readSoundFile(const std::vector<std::filesystem::path>& folders, const std::string& name) {
    for (const auto& folder : folders) {
        if (auto bytes = readRegularFile(folder / name)) {
            return *std::move(bytes);
        }
    }
    return {};
}

}  // namespace platform
