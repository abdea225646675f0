// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>

class QObject;

namespace platform {

/// Call this first in main(). From then on a write to a closed connection, or beyond the file-size limit, fails instead
/// of killing the program (SIGPIPE, SIGXFSZ); output to a standard stream that was closed at the start goes to
/// /dev/null; and a fatal message of the toolkit, such as "no display", ends the program with the exit status 1.
void prepareProcess();

/// Runs an action, from the event loop, when the system asks the program to end (SIGTERM, SIGINT or SIGHUP), or when
/// the session manager goes away. The action lives as long as its owner; only one at a time. If the system has no means
/// left for it, the signals keep their usual effect.
void onQuitSignal(QObject& owner, std::function<void()> action);

}  // namespace platform
