// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#include "platform/mouse.h"

#include <utility>

#include <QMouseEvent>
#include <QWidget>
#include <QtMath>

namespace platform {
namespace {

// Passes each event of a control to a function before the control handles the event.
template <typename Function>
class Listener : public QObject {
  public:
    Listener(QWidget& control, Function function) : QObject(&control), hear(std::move(function)) {
        control.installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        hear(*event);
        return QObject::eventFilter(watched, event);
    }

  private:
    Function hear;
};

template <typename Function>
void listen(QWidget& control, Function function) {
    new Listener<Function>(control, std::move(function));
}

// For the second press of a double click, Qt sends MouseButtonDblClick instead of MouseButtonPress.
bool isPress(const QEvent& event) {
    return event.type() == QEvent::MouseButtonPress || event.type() == QEvent::MouseButtonDblClick;
}

const QMouseEvent& asMouse(const QEvent& event) {
    return static_cast<const QMouseEvent&>(event);
}

bool isLeft(const QEvent& event) {
    return asMouse(event).button() == Qt::LeftButton;
}

}  // namespace

QPoint pixelUnder(const QMouseEvent& event) {
    return {qFloor(event.position().x()), qFloor(event.position().y())};
}

void onPress(QWidget& control, std::function<void(const QMouseEvent&)> action) {
    listen(control, [action = std::move(action)](const QEvent& event) {
        if (isPress(event)) {
            action(asMouse(event));
        }
    });
}

void onMove(QWidget& control, std::function<void()> action) {
    control.setMouseTracking(true);
    listen(control, [action = std::move(action)](const QEvent& event) {
        if (event.type() == QEvent::MouseMove) {
            action();
        }
    });
}

void onClick(QWidget& control, std::function<void()> action) {
    listen(control, [action = std::move(action), &control, pressed = false](const QEvent& event) mutable {
        if (isPress(event)) {
            pressed = isLeft(event);
        } else if (event.type() == QEvent::Hide) {
            pressed = false;
        } else if (event.type() == QEvent::MouseButtonRelease && isLeft(event) && std::exchange(pressed, false) &&
                   control.rect().contains(pixelUnder(asMouse(event)))) {
            action();
        }
    });
}

}  // namespace platform
