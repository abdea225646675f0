// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#include "platform/outline.h"

#include "platform/pixel_painter.h"

namespace platform {

Outline::Outline(QWidget* parent) : QWidget(parent) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

void Outline::paintEvent(QPaintEvent*) {
    PixelPainter(*this).drawOutline(rect(), palette().color(foregroundRole()));
}

}  // namespace platform
