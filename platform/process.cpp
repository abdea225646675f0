// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#include "platform/process.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <iostream>

#include <QSocketNotifier>
#include <fcntl.h>
#include <unistd.h>

#include "platform/shared_library.h"

namespace platform {
namespace {

// Only a few functions are safe in a signal handler; write() is one of them. The handler writes a byte to this pipe,
// and the byte wakes Qt's event loop.
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

// Qt aborts the program after a fatal message, for example "no display", and leaves a core file. This handler exits
// before that.
void logMessage(QtMsgType type, const QMessageLogContext& context, const QString& message) {
    std::cerr << qPrintable(qFormatLogMessage(type, context, message)) << std::endl;
    if (type == QtFatalMsg) {
        std::_Exit(EXIT_FAILURE);
    }
}

// Qt talks to the session manager through libICE. If the session manager disappears, libICE would call exit() at once.
// With this handler, the program quits as after a signal.
void outliveSessionManager() {
    void* (*setErrorHandler)(void (*)(void*)) = nullptr;
    void* library = dlopen("libICE.so.6", RTLD_NOW | RTLD_NOLOAD);
    if (library != nullptr && resolve(library, "IceSetIOErrorHandler", setErrorHandler)) {
        setErrorHandler([](void*) { wakeUp(0); });
    }
}

}  // namespace

void prepareProcess() {
    qInstallMessageHandler(&logMessage);
    // An empty handler, not SIG_IGN: programs that this program starts would inherit SIG_IGN.
    for (const int signal : {SIGPIPE, SIGXFSZ}) {
        handle(signal, [](int) {});
    }
    // open() returns the lowest free descriptor, so this loop opens each closed standard stream as /dev/null. A
    // descriptor above the standard streams shows that all three are open.
    int descriptor = 0;
    while (descriptor >= 0 && descriptor <= STDERR_FILENO) {
        descriptor = open("/dev/null", O_RDWR);
    }
    close(descriptor);
}

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
    outliveSessionManager();
}

}  // namespace platform
