// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

// The mouse outside the board drags the window, highlights a button, or previews the best score of a level.

#include <QMouseEvent>
#include <QRadioButton>

#include "mainwindow/balls.h"
#include "platform/drag.h"
#include "platform/label.h"
#include "platform/mouse.h"
#include "platform/picture_box.h"

namespace mainwindow {

void balls::connectMouse() {
    setMouseTracking(true);
    platform::onMove(*Frame2, [this] { Frame2_MouseMove(); });
    for (int i = 0; i < static_cast<int>(ImBTN.size()); ++i) {
        platform::onMove(*ImBTN[i], [this, i] { ImBTN_MouseMove(i); });
        platform::onMove(*LabBtn[i], [this, i] { LabBtn_MouseMove(i); });
    }
    for (int i = 0; QRadioButton * option : Option1) {
        platform::onMove(*option, [this, i] { Option1_MouseMove(i); });
        ++i;
    }
    // These labels all do the same, so none has handlers of its own, such as l1_MouseDown.
    for (platform::Label* label : {l1[0], l1[3], Label2, Label3, Label4, sc}) {
        platform::onPress(*label, [this, label](const QMouseEvent& press) { drag(*label, press); });
        platform::onMove(*label, [this] { highlight(noButton); });
    }
}

void balls::drag(QWidget& control, const QMouseEvent& press) {
    // During a move, the pointer may be over a cell that has just lost its ball.
    if (!turns.isMoving()) {
        platform::dragWindow(control, press);
    }
}

void balls::Form_MouseDown(const QMouseEvent& press) {
    drag(*this, press);
}

void balls::Form_MouseMove() {
    showBestScore(game.Diff);
    highlight(noButton);
}

void balls::Frame2_MouseMove() {
    highlight(noButton);
    showBestScore(game.Diff);
}

void balls::Option1_MouseMove(int Index) {
    showBestScore(Index);
    highlight(noButton);
}

void balls::ImBTN_MouseMove(int Index) {
    highlight(Index);
}

void balls::LabBtn_MouseMove(int Index) {
    highlight(Index);
}

void balls::highlight(int i) {
    for (int k = 0; k < static_cast<int>(ImBTN.size()); ++k) {
        ImBTN[k]->setPicture(BTN[k == i ? 1 : 0]->picture());
    }
}

void balls::mousePressEvent(QMouseEvent* event) {
    if (!frame.contains(platform::pixelUnder(*event))) {
        Form_MouseDown(*event);
    }
}

void balls::mouseMoveEvent(QMouseEvent* event) {
    // While a mouse button is held, Qt sends every move to the control that was pressed, even if the pointer has left
    // that control. Such moves are ignored here.
    if (event->buttons() == Qt::NoButton && !frame.contains(platform::pixelUnder(*event))) {
        Form_MouseMove();
    }
}

}  // namespace mainwindow
