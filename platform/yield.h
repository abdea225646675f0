// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include <chrono>

namespace platform {

/// Handles all pending events (input, repaints, timers) and returns.
void yield();

/// Handles events for this time, as they arrive.
void pause(std::chrono::microseconds duration);

}  // namespace platform
