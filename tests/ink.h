// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdlib>

#include <QLabel>
#include <QPainter>

#include "platform/look.h"

/// How much of a picture differs from the windows' colour.
inline int ink(const QPixmap& picture) {
    const QImage image = picture.toImage();
    int sum = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            sum += std::abs(qGray(image.pixel(x, y)) - qGray(platform::steelBlue));
        }
    }
    return sum;
}

/// A label's text in a font, far from any edge.
inline QPixmap unclipped(const QLabel& label, const QFont& font) {
    const double ratio = label.devicePixelRatioF();
    QPixmap text(QSize(800, 200) * ratio);
    text.setDevicePixelRatio(ratio);
    text.fill(Qt::transparent);
    QPainter painter(&text);
    painter.setFont(font);
    painter.setPen(label.palette().color(QPalette::WindowText));
    const bool wraps = label.wordWrap();
    const QRect room(20, 20, label.width() + (wraps ? 0 : 400), 160);
    painter.drawText(room, static_cast<int>(label.alignment()) | (wraps ? Qt::TextWordWrap : 0), label.text());
    QPixmap picture(text.size());
    picture.setDevicePixelRatio(ratio);
    picture.fill(platform::steelBlue);
    QPainter(&picture).drawPixmap(0, 0, text);
    return picture;
}
