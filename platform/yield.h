// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include <chrono>

namespace platform {

/// Handles all pending events (input, repaints, timers) and returns.
void yield();

/// Handles events as they arrive, until `duration` is over. The duration is rounded up to whole milliseconds.
void pause(std::chrono::microseconds duration);

}  // namespace platform
