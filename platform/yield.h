// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include <chrono>

namespace platform {

/// Handles every event that is pending (input, repaint, timers), shows on screen what that painted, and
/// returns.
void yield();

/// Handles events for this long, as they come in.
void pause(std::chrono::microseconds duration);

}  // namespace platform
