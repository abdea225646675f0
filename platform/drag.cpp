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

// Moves the window itself, because on X11 a system move that begins with the middle or right button does not end at the
// release of that button.
class Drag : public QObject {
  public:
    Drag(QWidget& pressed, const QMouseEvent& press)
        : QObject(&pressed),
          control(pressed),
          button(press.button()),
          grip(press.globalPosition().toPoint() - pressed.window()->pos()) {
        // On the application, because the press may still be on its way through the control's own filters, and because
        // a child of the window may receive the mouse.
        qApp->installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (!watched->isWidgetType() || static_cast<QWidget*>(watched)->window() != control.window()) {
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
    // False if the release of the drag's button never reached us.
    bool isHeldAt(const QMouseEvent& press) const {
        return press.button() != button && press.buttons().testFlag(button);
    }

    void follow(const QMouseEvent& mouse) {
        const bool released = mouse.button() == button;
        if (released || mouse.buttons().testFlag(button)) {
            control.window()->move(mouse.globalPosition().toPoint() - grip);
        }
        // The next move shows that the release never reached us.
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
    QPoint grip;  // the pointer inside the window, in pixels
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
