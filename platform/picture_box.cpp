// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#include "platform/picture_box.h"

#include <utility>

#include "platform/pixel_painter.h"

namespace platform {

PictureBox::PictureBox(Picture picture, QWidget* parent) : QWidget(parent), shown(std::move(picture)) {}

void PictureBox::setPicture(const Picture& picture) {
    if (shown != picture) {
        shown = picture;
        update();
    }
}

void PictureBox::paintEvent(QPaintEvent*) {
    PixelPainter(*this).draw({}, shown);
}

}  // namespace platform
