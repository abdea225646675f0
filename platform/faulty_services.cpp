// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#include "platform/faulty_services.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <csignal>
#include <cstdlib>

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QFile>
#include <fcntl.h>
#include <poll.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include "platform/shared_library.h"

using namespace Qt::StringLiterals;

namespace platform {
namespace {

using Clock = std::chrono::steady_clock;

constexpr const char* sessionBusVariable = "DBUS_SESSION_BUS_ADDRESS";
constexpr const char* accessibilityBusVariable = "AT_SPI_BUS_ADDRESS";
constexpr const char* sessionManagerVariable = "SESSION_MANAGER";
constexpr const char* noBus = "disabled:";

bool mayHaveSessionBus() {
    const QByteArray address = qgetenv(sessionBusVariable);
    return address.isEmpty() ? QFile::exists(qEnvironmentVariable("XDG_RUNTIME_DIR") + u"/bus"_s) : address != noBus;
}

bool greetSessionBus() {
    QDBusConnection::sessionBus();
    return true;
}

bool mayHaveAccessibilityBus() {
    return !qEnvironmentVariableIsEmpty(accessibilityBusVariable) || mayHaveSessionBus();
}

bool greetAccessibilityBus() {
    QString address = qEnvironmentVariable(accessibilityBusVariable);
    if (address.isEmpty()) {
        QDBusMessage question =
            QDBusMessage::createMethodCall(u"org.a11y.Bus"_s, u"/org/a11y/bus"_s, u"org.a11y.Bus"_s, u"GetAddress"_s);
        question.setAutoStartService(false);
        address = QDBusConnection::sessionBus().call(question).arguments().value(0).toString();
    }
    QDBusConnection::connectToBus(address, u"accessibility"_s);
    return true;
}

bool mayHaveSessionManager() {
    return !qEnvironmentVariableIsEmpty(sessionManagerVariable);
}

bool greetSessionManager() {
    void* (*openConnection)(const char*, void*, int, int, int, char*) = nullptr;
    void* library = loadLibrary("libICE.so.6");
    std::array<char, 256> error{};
    return library == nullptr || !resolve(library, "IceOpenConnection", openConnection) ||
           openConnection(std::getenv(sessionManagerVariable), nullptr, 0, 0, error.size(), error.data()) != nullptr;
}

struct Service {
    bool (*mayBeThere)();
    bool (*greet)();       ///< waits for the service's answer; false if Qt must not use the service
    const char* variable;  ///< the environment variable with the service's address
    const char* hidden;    ///< the value that makes Qt skip the service
};

constexpr std::array services{
    Service{mayHaveSessionBus, greetSessionBus, sessionBusVariable, noBus},
    Service{mayHaveAccessibilityBus, greetAccessibilityBus, accessibilityBusVariable, noBus},
    Service{mayHaveSessionManager, greetSessionManager, sessionManagerVariable, ""},
};

/// A child process that greets a service: a greeting may hang or crash. Both members are -1 if there is no process.
struct Greeter {
    pid_t process = -1;
    int ending = -1;  ///< a pipe that closes when the process ends
};

Greeter startGreeter(const Service& service) {
    std::array<int, 2> ends{};
    if (!service.mayBeThere() || pipe2(ends.data(), O_CLOEXEC) != 0) {
        return {};
    }
    const pid_t process = fork();
    if (process == 0) {
        prctl(PR_SET_PDEATHSIG, SIGKILL);
        prctl(PR_SET_DUMPABLE, 0);
        int argc = 0;
        const QCoreApplication application(argc, nullptr);
        _exit(service.greet() ? EXIT_SUCCESS : EXIT_FAILURE);
    }
    close(ends[1]);
    if (process < 0) {
        close(ends[0]);
        return {};
    }
    return {process, ends[0]};
}

/// Waits for the process. Kills the process if it is still running at the deadline. Returns true if the process ended
/// in time and with success.
bool succeedsBy(Clock::time_point deadline, const Greeter& greeter) {
    const auto left = std::chrono::ceil<std::chrono::milliseconds>(deadline - Clock::now());
    pollfd ending{.fd = greeter.ending, .events = POLLIN, .revents = 0};
    const bool isInTime = poll(&ending, 1, std::max(0, static_cast<int>(left.count()))) > 0;
    if (!isInTime) {
        kill(greeter.process, SIGKILL);
    }
    int status = EXIT_SUCCESS;
    waitpid(greeter.process, &status, 0);
    return isInTime && status == EXIT_SUCCESS;
}

}  // namespace

void hideFaultyServices() {
    // The parent process may have set this program to ignore SIGCHLD. waitpid() would then report no status.
    std::signal(SIGCHLD, SIG_DFL);
    std::array<Greeter, services.size()> greeters;
    std::ranges::transform(services, greeters.begin(), startGreeter);
    const auto deadline = Clock::now() + std::chrono::milliseconds(1500);
    for (std::size_t i = 0; i < services.size(); ++i) {
        const Greeter& greeter = greeters[i];
        if (greeter.process < 0) {
            continue;
        }
        if (!succeedsBy(deadline, greeter)) {
            qputenv(services[i].variable, services[i].hidden);
            qWarning("The service for %s does not answer properly and is not used.", services[i].variable);
        }
        close(greeter.ending);
    }
}

}  // namespace platform
