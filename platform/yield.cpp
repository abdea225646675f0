// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#include "platform/yield.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QTimer>

namespace platform {

void yield() {
    QCoreApplication::processEvents();
}

void pause(std::chrono::microseconds duration) {
    QEventLoop loop;
    QTimer::singleShot(std::chrono::ceil<std::chrono::milliseconds>(duration), Qt::PreciseTimer, &loop,
                       &QEventLoop::quit);
    loop.exec();
}

}  // namespace platform
