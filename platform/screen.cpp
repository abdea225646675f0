// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#include "platform/screen.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>
#include <QWindow>

namespace platform {

Box screenOf(const QWidget& window) {
    const QWindow* shown = window.windowHandle();
    const QScreen* screen = shown != nullptr ? shown->screen() : QGuiApplication::primaryScreen();
    if (screen == nullptr) {
        return {};
    }
    const QRect area = screen->geometry();
    return {toTwips(area.x()), toTwips(area.y()), toTwips(area.width()), toTwips(area.height())};
}

}  // namespace platform
