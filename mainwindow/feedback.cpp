// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

// What the mouse does beside playing: the window is dragged, buttons show that they are under it, and the best score
// of the level under it is previewed.

#include <QLabel>
#include <QMouseEvent>
#include <QRadioButton>

#include "mainwindow/balls.h"
#include "mainwindow/boardgeometry.h"
#include "platform/controls.h"
#include "platform/drag.h"
#include "platform/label.h"
#include "platform/mouse.h"
#include "platform/picture_box.h"

namespace mainwindow {

void balls::connectMouse() {
    setMouseTracking(true);
    platform::onMove(*Frame2, [this] { Frame2_MouseMove(); });
    for (int i = 0; platform::PictureBox * button : ImBTN) {
        platform::onMove(*button, [this, i] { ImBTN_MouseMove(i); });
        platform::onMove(*platform::control<QLabel>(*this, "LabBtn", i), [this, i] { LabBtn_MouseMove(i); });
        ++i;
    }
    for (int i = 0; QRadioButton * option : Option1) {
        platform::onMove(*option, [this, i] { Option1_MouseMove(i); });
        ++i;
    }
    // l1_MouseDown and l1_MouseMove, and those of Label2, Label3, Label4 and sc, are all alike.
    auto* Label2 = platform::control<platform::Label>(*this, "Label2");
    for (platform::Label* label : {l1[0], l1[3], Label2, Label3, Label4, sc}) {
        platform::onPress(*label, [label](const QMouseEvent& press) { platform::dragWindow(*label, press); });
        platform::onMove(*label, [this] { highlight(noButton); });
    }
}

void balls::Form_MouseDown(const QMouseEvent& press) {
    platform::dragWindow(*this, press);
}

void balls::Form_MouseMove() {
    Label4->setText(bestScores.hsc(game.Diff));
    highlight(noButton);
}

void balls::Frame2_MouseMove() {
    highlight(noButton);
    Label4->setText(bestScores.hsc(game.Diff));
}

void balls::Option1_MouseMove(int Index) {
    Label4->setText(bestScores.hsc(Index));
    highlight(noButton);
}

void balls::ImBTN_MouseMove(int Index) {
    highlight(Index);
}

void balls::LabBtn_MouseMove(int Index) {
    highlight(Index);
}

void balls::highlight(int i) {
    for (int k = 0; platform::PictureBox * button : ImBTN) {
        button->setPicture(BTN[k++ == i ? 1 : 0]->picture());
    }
}

// One hit test for all that the window paints itself, front to back: border, cells, background.
void balls::mousePressEvent(QMouseEvent* event) {
    const QPoint point = platform::pixelUnder(*event);
    if (frame.contains(point)) {
        return;
    }
    if (const auto cell = cellAt(game.board, point)) {
        c_MouseDown(*cell, *event);
    } else {
        Form_MouseDown(*event);
    }
}

// While a button is held, the pointer belongs to the cell or piece of the border that it was pressed on.
void balls::mouseMoveEvent(QMouseEvent* event) {
    const QPoint point = platform::pixelUnder(*event);
    if (event->buttons() == Qt::NoButton && !frame.contains(point) && !cellAt(game.board, point)) {
        Form_MouseMove();
    }
}

}  // namespace mainwindow
