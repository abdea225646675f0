// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#include "platform/focus_ring.h"

#include <QAbstractButton>
#include <QApplication>
#include <QEvent>
#include <QFocusFrame>
#include <QKeyEvent>
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

// A player who uses the mouse may press Alt to change to another window.
bool isModifier(const QKeyEvent& event) {
    return (event.key() >= Qt::Key_Shift && event.key() <= Qt::Key_ScrollLock) || event.key() == Qt::Key_AltGr;
}

class Ring : public QFocusFrame {
  public:
    explicit Ring(QWidget& control) : QFocusFrame(control.window()) { setWidget(&control); }

  protected:
    void paintEvent(QPaintEvent*) override {
        // The text of a label is at the top of the label, so its ring is higher.
        const bool isLabel = qobject_cast<Label*>(widget()) != nullptr;
        const QRectF ring = rect().adjusted(0, isLabel ? 0 : 2, 0, isLabel ? -5 : -2);
        constexpr double thickness = 1.5;
        constexpr double inset = thickness / 2;
        constexpr double rounding = 3;
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(Qt::black, thickness));
        painter.drawRoundedRect(ring.adjusted(inset, inset, -inset, -inset), rounding, rounding);
    }
};

// Knows which device the player used last, in all windows: a window that a key has opened has a ring from the start.
class FocusRing : public QObject {
  public:
    FocusRing() : QObject(qApp) {
        qApp->installEventFilter(this);
        connect(qApp, &QApplication::focusChanged, this, &FocusRing::surround);
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        // Qt sends ShortcutOverride for every key, but KeyPress only for a key that is no shortcut.
        const bool isKey = event->type() == QEvent::ShortcutOverride && !isModifier(*static_cast<QKeyEvent*>(event));
        const bool isMouse = event->type() == QEvent::MouseButtonPress;
        if ((isKey && !usesKeys) || (isMouse && usesKeys)) {
            usesKeys = isKey;
            surround(nullptr, QApplication::focusWidget());
        }
        return QObject::eventFilter(watched, event);
    }

  private:
    void surround(QWidget*, QWidget* focused) {
        delete ring;
        if (usesKeys && hasRing(focused)) {
            ring = new Ring(*focused);
        }
    }

    bool usesKeys = false;
    QPointer<Ring> ring;
};

}  // namespace

void showFocusRing() {
    new FocusRing;
}

}  // namespace platform
