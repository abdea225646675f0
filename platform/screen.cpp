// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#include "platform/screen.h"

#include <QGuiApplication>
#include <QScreen>
#include <QTimer>
#include <QWidget>
#include <QWindow>

namespace platform {
namespace {

// When a window moves to a screen of another scale, Qt keeps the window's size in screen pixels. SizeKeeper restores
// the window's size in layout pixels.
class SizeKeeper : public QObject {
  public:
    explicit SizeKeeper(QWidget& window) : QObject(&window) { window.installEventFilter(this); }

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::ScreenChangeInternal) {
            auto* window = static_cast<QWidget*>(watched);
            QTimer::singleShot(0, window, [window] { window->windowHandle()->resize(window->minimumSize()); });
        }
        return QObject::eventFilter(watched, event);
    }
};

}  // namespace

Box screenOf(const QWidget& window) {
    const QWindow* shown = window.windowHandle();
    const QScreen* screen = shown != nullptr ? shown->screen() : QGuiApplication::primaryScreen();
    if (screen == nullptr) {
        return {};
    }
    const QRect area = screen->geometry();
    return {toTwips(area.x()), toTwips(area.y()), toTwips(area.width()), toTwips(area.height())};
}

void keepSizeOnEveryScreen(QWidget& window) {
    new SizeKeeper(window);
}

}  // namespace platform
