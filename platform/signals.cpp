// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#include "platform/signals.h"

#include <array>
#include <cerrno>
#include <csignal>

#include <QSocketNotifier>
#include <fcntl.h>
#include <unistd.h>

namespace platform {
namespace {

// A handler may do next to nothing: it writes a byte, which wakes the event loop.
std::array<int, 2> wake{-1, -1};  // NOLINT(cppcoreguidelines-avoid-non-const-global-variables): handlers take no data

void wakeUp(int) {
    const int before = errno;
    const char byte = 0;
    [[maybe_unused]] const auto written = write(wake[1], &byte, 1);
    errno = before;
}

void handle(int signal, void (*handler)(int)) {
    struct sigaction handling {};
    handling.sa_handler = handler;
    handling.sa_flags = SA_RESTART;
    sigemptyset(&handling.sa_mask);
    sigaction(signal, &handling, nullptr);
}

}  // namespace

void onQuitSignal(QObject& owner, std::function<void()> action) {
    if (wake[0] < 0 && pipe2(wake.data(), O_CLOEXEC | O_NONBLOCK) != 0) {
        return;
    }
    auto* notifier = new QSocketNotifier(wake[0], QSocketNotifier::Read, &owner);
    QObject::connect(notifier, &QSocketNotifier::activated, notifier, [action = std::move(action)] {
        std::array<char, 16> bytes{};
        while (read(wake[0], bytes.data(), bytes.size()) > 0) {
        }
        action();
    });
    for (const int signal : {SIGTERM, SIGINT, SIGHUP}) {
        handle(signal, &wakeUp);
    }
}

void surviveFailedWrites() {
    // Not by ignoring them, which the programs that are started from here would inherit.
    for (const int signal : {SIGPIPE, SIGXFSZ}) {
        handle(signal, [](int) {});
    }
}

}  // namespace platform
