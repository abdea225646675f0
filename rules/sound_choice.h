// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string_view>

namespace rules {

/// The name of the sound file for a group of this many balls.
std::string_view soundFor(int balls);

}  // namespace rules
