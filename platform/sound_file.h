// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <vector>

namespace platform {

/// No sound file is read that is larger, in bytes.
inline constexpr std::size_t largestSoundFile = std::size_t{4} << 20;

/// The bytes of the first regular file `name` in `folders`. Empty if there is none, or if that file is
/// unreadable or larger than `largestSoundFile`. Never waits for the writer of a FIFO.
std::string readSoundFile(const std::vector<std::filesystem::path>& folders, const std::string& name);

}  // namespace platform
