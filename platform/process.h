// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>

class QObject;

namespace platform {

/// To be called before all else. From then on, what is written to a connection that is closed or beyond the largest
/// size of files fails, and does not end the program (SIGPIPE, SIGXFSZ); and what is written to a standard stream that
/// was closed from the start goes nowhere, not into whatever would be opened in its place.
void prepareProcess();

/// Runs an action, from the event loop, when the system asks the program to end (SIGTERM, SIGINT or SIGHUP), or when
/// the session manager goes away. The action lives as long as its owner; only one at a time. If the system has no means
/// left for it, the signals keep their usual effect.
void onQuitSignal(QObject& owner, std::function<void()> action);

}  // namespace platform
