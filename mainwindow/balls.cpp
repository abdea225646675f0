// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#include "mainwindow/balls.h"

#include <type_traits>
#include <utility>

#include <QCheckBox>
#include <QGuiApplication>
#include <QRadioButton>

#include "about/about.h"
#include "assets/pictures.h"
#include "mainwindow/balls_controls.h"
#include "mainwindow/board/accessible_table.h"
#include "mainwindow/board/board_widget.h"
#include "platform/controls.h"
#include "platform/label.h"
#include "platform/mouse.h"
#include "platform/picture_box.h"
#include "platform/pixel_painter.h"
#include "platform/screen.h"
#include "platform/text_box.h"

using namespace Qt::StringLiterals;

namespace mainwindow {

balls::balls(Surroundings given)
    : QWidget(nullptr, Qt::Window | Qt::FramelessWindowHint),
      surroundings(std::move(given)),
      bestScores(surroundings.store, rules::levels),
      c(new BoardWidget(*this, game.board)) {
    makeAccessible(*c);
    platform::keepSizeOnEveryScreen(*this);
    createControls();
    connectControls();
    connectMouse();
    connectKeys();
    orderTabStops();
    describeControls();
    // With Qt 6.8, setting the title makes Qt create what screen readers find, so the roles must be known before.
    setWindowTitle(u"Zampotine"_s);
    Form_Load();
}

// Delete the board before `game`. When Qt destroys the window, it takes the focus from the board, and the board then
// reads `game`.
balls::~balls() {
    delete c;
}

void balls::createControls() {
    const auto bind = [this](auto*& control, const char* name, int index = -1) {
        control = platform::control<std::remove_reference_t<decltype(*control)>>(*this, name, index);
    };
    const auto bindAll = [&](auto& array, const char* name) {
        for (int k = 0; auto*& control : array) {
            bind(control, name, k++);
        }
    };
    platform::buildControls(controlsInWindow(), *this, assets::picture);
    bind(Frame1, "Frame1");
    bind(Frame2, "Frame2");
    bindAll(BTN, "BTN");
    platform::buildControls(controlsInFrame1(), *Frame1, assets::picture);
    bind(Label1, "Label1");
    bind(Label7, "Label7");
    platform::buildControls(controlsInFrame2(), *Frame2, assets::picture);
    bind(Check1, "Check1");
    bind(Image1, "Image1");
    bind(Label2, "Label2");
    bind(Label3, "Label3");
    bind(Label4, "Label4");
    bind(sc, "sc");
    bind(l1[0], "l1", 0);
    bind(l1[3], "l1", 3);
    bindAll(Text1, "Text1");
    bindAll(Option1, "Option1");
    groupLevels();
    bindAll(LabBtn, "LabBtn");
    bindAll(ImBTN, "ImBTN");
    bindAll(Label5, "Label5");
    bindAll(hsc, "hsc");
    for (platform::Label* label : hsc) {
        label->setEnabled(false);
    }
    endBalls = new animation::BouncingPictures(*Frame1);
}

void balls::connectControls() {
    connect(c, &BoardWidget::pressed, this, &balls::c_MouseDown);
    connect(c, &BoardWidget::played, this, &balls::play);
    connect(c, &BoardWidget::asked, this, &balls::playSoon);
    for (int i = 0; i < static_cast<int>(ImBTN.size()); ++i) {
        platform::onClick(*ImBTN[i], [this, i] { ImBTN_Click(i); });
        platform::onClick(*LabBtn[i], [this, i] { LabBtn_Click(i); });
    }
    connectLevels();
    platform::onPress(*Image1, [this](const QMouseEvent&) { Image1_MouseDown(); });
    platform::onClick(*Frame1, [this] { Frame1_Click(); });
    // At the end of a session, the desktop may kill the program without closing the window. Save the settings first.
    connect(qApp, &QGuiApplication::commitDataRequest, this, &balls::Form_Unload);
}

void balls::paintEvent(QPaintEvent*) {
    platform::PixelPainter painter(*this);
    frame.draw(painter);
}

}  // namespace mainwindow
