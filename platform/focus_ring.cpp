// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#include "platform/focus_ring.h"

#include <QAbstractButton>
#include <QApplication>
#include <QEvent>
#include <QFocusFrame>
#include <QLineEdit>
#include <QPainter>
#include <QPointer>

#include "platform/label.h"

namespace platform {
namespace {

// The control to surround, or null. The editor of a text box fills its box, which would cut off a ring in it.
QWidget* controlWithRing(QWidget* focused) {
    if (qobject_cast<QLineEdit*>(focused) != nullptr) {
        return focused->parentWidget();
    }
    const bool hasRing = qobject_cast<QAbstractButton*>(focused) != nullptr || qobject_cast<Label*>(focused) != nullptr;
    return hasRing ? focused : nullptr;
}

// Knows which device the player used last, in all windows: a window that a key has opened has a ring from the start.
class FocusRing : public QObject {
  public:
    FocusRing() : QObject(qApp) {
        qApp->installEventFilter(this);
        connect(qApp, &QApplication::focusChanged, this, &FocusRing::surround);
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::KeyPress || event->type() == QEvent::MouseButtonPress) {
            const bool isKey = event->type() == QEvent::KeyPress;
            if (isKey != usesKeys) {
                usesKeys = isKey;
                surround(nullptr, QApplication::focusWidget());
            }
        }
        return QObject::eventFilter(watched, event);
    }

  private:
    void surround(QWidget*, QWidget* focused) {
        delete ring;
        if (QWidget* control = controlWithRing(focused); usesKeys && control != nullptr) {
            ring = new QFocusFrame(control->parentWidget());
            ring->setWidget(control);
        }
    }

    bool usesKeys = false;
    QPointer<QFocusFrame> ring;
};

}  // namespace

void showFocusRing() {
    new FocusRing;
}

void drawFocusRing(QPainter& painter, const QRect& area) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(Qt::black, 1.5));
    painter.drawRoundedRect(QRectF(area).adjusted(0.75, 0.75, -0.75, -0.75), 3, 3);
    painter.restore();
}

}  // namespace platform
