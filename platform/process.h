// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>

class QObject;

namespace platform {

/// Call this function first in main(). The function changes what happens in three cases:
/// - A write to a closed connection or beyond the file-size limit (SIGPIPE, SIGXFSZ) fails. The program lives on.
/// - Output to a standard stream that was closed at the start goes to /dev/null.
/// - A fatal message of Qt, for example "no display", ends the program with exit status 1.
void prepareProcess();

/// Runs an action when a signal asks the program to end (SIGTERM, SIGINT or SIGHUP), or when the session manager
/// disappears. Qt's event loop runs the action. The action is removed when `owner` is destroyed. Only one action may
/// exist at a time. If the system cannot open a pipe, the signals keep their default effect.
void onQuitSignal(QObject& owner, std::function<void()> action);

}  // namespace platform
