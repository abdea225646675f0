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

bool hasRing(const QWidget* control) {
    return qobject_cast<const QAbstractButton*>(control) != nullptr ||
           qobject_cast<const QLineEdit*>(control) != nullptr || qobject_cast<const Label*>(control) != nullptr;
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
        if (usesKeys && hasRing(focused)) {
            ring = new QFocusFrame(focused->window());
            ring->setWidget(focused);
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
