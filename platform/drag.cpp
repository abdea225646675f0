// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#include "platform/drag.h"

#include <QGuiApplication>
#include <QMouseEvent>
#include <QWidget>
#include <QWindow>

using namespace Qt::StringLiterals;

namespace platform {
namespace {

// The window follows by our own hand: a system move of X11 that was begun with the middle or right button does not
// end at its release.
class Drag : public QObject {
  public:
    Drag(QWidget& pressed, const QMouseEvent& press)
        : QObject(&pressed),
          control(pressed),
          button(press.button()),
          grip(press.globalPosition().toPoint() - pressed.window()->pos()) {
        // Not on the control: the press may still be on its way through the filters there.
        qApp->installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (watched != &control) {
            return QObject::eventFilter(watched, event);
        }
        switch (event->type()) {
            case QEvent::MouseButtonPress:
            case QEvent::MouseButtonDblClick:
                if (isHeldAt(*static_cast<QMouseEvent*>(event))) {
                    return true;
                }
                end();
                break;
            case QEvent::MouseMove:
            case QEvent::MouseButtonRelease:
                follow(*static_cast<QMouseEvent*>(event));
                return true;
            case QEvent::Hide:
                end();
                break;
            default:
                break;
        }
        return QObject::eventFilter(watched, event);
    }

  private:
    // If not, the release went elsewhere.
    bool isHeldAt(const QMouseEvent& press) const {
        return press.button() != button && press.buttons().testFlag(button);
    }

    void follow(const QMouseEvent& mouse) {
        const bool released = mouse.button() == button;
        if (released || mouse.buttons().testFlag(button)) {
            control.window()->move(mouse.globalPosition().toPoint() - grip);
        }
        // A release that went elsewhere shows in the next move.
        if (!mouse.buttons().testFlag(button)) {
            end();
        }
    }

    void end() {
        qApp->removeEventFilter(this);
        deleteLater();
    }

    QWidget& control;
    Qt::MouseButton button;
    QPoint grip;  // the pointer's place inside the window, in pixels
};

}  // namespace

void dragWindow(QWidget& control, const QMouseEvent& press) {
    if (QGuiApplication::platformName().startsWith(u"wayland"_s)) {
        control.window()->windowHandle()->startSystemMove();
    } else {
        new Drag(control, press);
    }
}

}  // namespace platform
