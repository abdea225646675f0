#include "platform/screen.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>

namespace platform {

Box screenOf(const QWidget& window) {
    const QScreen* screen = window.isVisible() ? window.screen() : QGuiApplication::primaryScreen();
    if (screen == nullptr) {
        return {};
    }
    const QRect area = screen->geometry();
    return {toTwips(area.x()), toTwips(area.y()), toTwips(area.width()), toTwips(area.height())};
}

}  // namespace platform
