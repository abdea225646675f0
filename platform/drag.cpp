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

// Moves the window without the window manager. On X11, a move by the window manager that begins with the middle or
// right button does not end when the player releases that button.
class Drag : public QObject {
  public:
    Drag(QWidget& pressed, const QMouseEvent& press)
        : QObject(&pressed),
          control(pressed),
          button(press.button()),
          grip(press.globalPosition().toPoint() - pressed.window()->pos()) {
        // The filter is installed on the application for two reasons. Qt may still be sending the press through the
        // control's own filters. Also, Qt may send mouse events to a child of the window instead of the control.
        qApp->installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (!watched->isWidgetType() || static_cast<QWidget*>(watched)->window() != control.window()) {
            return QObject::eventFilter(watched, event);
        }
        switch (event->type()) {
            case QEvent::MouseButtonPress:
            case QEvent::MouseButtonDblClick:
                if (isOtherButton(*static_cast<QMouseEvent*>(event))) {
                    return true;
                }
                end();
                break;
            case QEvent::MouseMove:
            case QEvent::MouseButtonRelease:
                follow(*static_cast<QMouseEvent*>(event));
                return true;
            case QEvent::Hide:
                if (watched == &control) {
                    end();
                }
                break;
            default:
                break;
        }
        return QObject::eventFilter(watched, event);
    }

  private:
    // True for a press of another button while the drag's button is still down. False means that the program missed the
    // release of the drag's button.
    bool isOtherButton(const QMouseEvent& press) const {
        return press.button() != button && press.buttons().testFlag(button);
    }

    void follow(const QMouseEvent& mouse) {
        const bool released = mouse.button() == button;
        if (released || mouse.buttons().testFlag(button)) {
            control.window()->move(mouse.globalPosition().toPoint() - grip);
        }
        // If the button is up, the event is its release, or the first move after a release that the program missed.
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
    QPoint grip;  // the pointer, relative to the window's position, in layout pixels
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
