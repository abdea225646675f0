// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string_view>

namespace rules {

/// The file name of the sound for a group of `balls` balls.
std::string_view soundFor(int balls);

}  // namespace rules
