// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#include "mainwindow/balls.h"

#include <utility>

#include <QCheckBox>
#include <QGuiApplication>
#include <QLabel>
#include <QPaintEvent>
#include <QRadioButton>

#include "about/about.h"
#include "assets/pictures.h"
#include "mainwindow/boardcursor.h"
#include "mainwindow/layout.h"
#include "platform/controls.h"
#include "platform/label.h"
#include "platform/mouse.h"
#include "platform/picture_box.h"
#include "platform/pixel_painter.h"
#include "platform/screen.h"
#include "platform/text_box.h"

using namespace Qt::StringLiterals;

namespace mainwindow {

balls::balls(Surroundings world)
    : QWidget(nullptr, Qt::Window | Qt::FramelessWindowHint),
      surroundings(std::move(world)),
      bestScores(surroundings.store) {
    setWindowTitle(u"Zampotine"_s);
    platform::keepSizeOnEveryScreen(*this);
    cursor = new BoardCursor(*this, game.board, [this](rules::CellIndex i) { play(i); });
    platform::buildControls(controlsInWindow(), *this, assets::picture);
    bindControls();
    connectControls();
    connectMouse();
    connectKeys();
    orderTabStops();
    describeControls();
    Form_Load();
}

balls::~balls() = default;

void balls::bindControls() {
    Frame1 = platform::control<QWidget>(*this, "Frame1");
    Frame2 = platform::control<QWidget>(*this, "Frame2");
    platform::buildControls(controlsInFrame1(), *Frame1, assets::picture);
    platform::buildControls(controlsInFrame2(), *Frame2, assets::picture);
    Check1 = platform::control<QCheckBox>(*this, "Check1");
    sc = platform::control<platform::Label>(*this, "sc");
    Label1 = platform::control<platform::Label>(*this, "Label1");
    Label3 = platform::control<platform::Label>(*this, "Label3");
    Label4 = platform::control<platform::Label>(*this, "Label4");
    Label7 = platform::control<platform::Label>(*this, "Label7");
    l1[0] = platform::control<platform::Label>(*this, "l1", 0);
    l1[3] = platform::control<platform::Label>(*this, "l1", 3);
    for (int k = 0; auto& face : BTN) {
        face = platform::control<platform::PictureBox>(*this, "BTN", k++);
    }
    for (int k = 0; auto& button : ImBTN) {
        button = platform::control<platform::PictureBox>(*this, "ImBTN", k++);
    }
    for (int k = 0; auto& box : Text1) {
        box = platform::control<platform::TextBox>(*this, "Text1", k++);
    }
    for (int k = 0; auto& option : Option1) {
        option = platform::control<QRadioButton>(*this, "Option1", k++);
    }
    for (int k = 0; auto& label : hsc) {
        label = platform::control<platform::Label>(*this, "hsc", k++);
        label->setEnabled(false);
    }
    endBalls = new animation::BouncingPictures(*Frame1);
}

void balls::connectControls() {
    for (int i = 0; i < 3; ++i) {
        platform::onClick(*ImBTN[i], [this, i] { ImBTN_Click(i); });
        platform::onClick(*platform::control<QLabel>(*this, "LabBtn", i), [this, i] { LabBtn_Click(i); });
    }
    for (int k = 0; QRadioButton * option : Option1) {
        // The options are one tab stop, entered at the selected one.
        option->setFocusPolicy(Qt::ClickFocus);
        connect(option, &QRadioButton::toggled, this, [this, option, k](bool selected) {
            option->setFocusPolicy(selected ? Qt::StrongFocus : Qt::ClickFocus);
            if (selected) {
                Option1_Click(k);
            }
        });
        ++k;
    }
    platform::onPress(*platform::control<QWidget>(*this, "Image1"), [this](const QMouseEvent&) { Image1_MouseDown(); });
    platform::onClick(*Frame1, [this] { Frame1_Click(); });
    // The session may end without closing the window first.
    connect(qApp, &QGuiApplication::commitDataRequest, this, &balls::Form_Unload);
}

void balls::paintEvent(QPaintEvent* event) {
    platform::PixelPainter painter(*this);
    c.draw(painter, game.board, event->region());
    frame.draw(painter);
}

}  // namespace mainwindow
