// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>

class QObject;

namespace platform {

/// Call first in main(). Then a write to a closed connection or beyond the file-size limit fails instead of killing the
/// program (SIGPIPE, SIGXFSZ), output to a stream closed at start goes to /dev/null, and a fatal message of Qt, such as
/// "no display", ends the program with exit status 1.
void prepareProcess();

/// Runs an action, from the event loop, when the system asks the program to end (SIGTERM, SIGINT or SIGHUP) or the
/// session manager disappears. The action is dropped with its owner; only one action at a time. If no pipe can be
/// opened, the signals keep their usual effect.
void onQuitSignal(QObject& owner, std::function<void()> action);

}  // namespace platform
