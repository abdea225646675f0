// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#include "platform/pixel_painter.h"

#include <algorithm>
#include <cmath>

#include <QRegion>
#include <QWidget>

namespace platform {

PixelPainter::PixelPainter(QWidget& widget) : painter(&widget), toScreen(painter.deviceTransform()) {
    painter.setTransform(toScreen.inverted());
}

QRect PixelPainter::pixels(const QRect& area) const {
    const QRectF exact = toScreen.mapRect(QRectF(area));
    return {QPoint(qRound(exact.left()), qRound(exact.top())),
            QPoint(qRound(exact.right()) - 1, qRound(exact.bottom()) - 1)};
}

void PixelPainter::draw(QPoint place, const Picture& picture) {
    const QRect area = pixels({place, picture.size()});
    painter.drawPixmap(area.topLeft(), picture.inPixels(area.size()));
}

void PixelPainter::draw(QPoint place, const Picture& picture, const QRegion& region) {
    const QRect area = pixels({place, picture.size()});
    const QPixmap image = picture.inPixels(area.size());
    for (const QRect& part : region) {
        // A screen pixel is painted if the region touches any part of it.
        const QRect touched = toScreen.mapRect(QRectF(part)).toAlignedRect() & area;
        painter.drawPixmap(touched, image, touched.translated(-area.topLeft()));
    }
}

void PixelPainter::drawOutline(const QRect& area, const QColor& colour) {
    const QRect whole = pixels(area);
    const int thickness = std::max(1, qRound(painter.device()->devicePixelRatioF()));
    const QRegion sides = QRegion(whole) - whole.adjusted(thickness, thickness, -thickness, -thickness);
    for (const QRect& side : sides) {
        painter.fillRect(side, colour);
    }
}

void PixelPainter::draw(QPoint place, const QPixmap& image) {
    painter.drawPixmap(toScreen.map(QPointF(place)).toPoint(), image);
}

QRect paintedArea(const QWidget& widget, const QRect& area) {
    const double ratio = widget.devicePixelRatioF();
    const int reach = ratio == std::floor(ratio) ? 0 : 1;
    return area.adjusted(-reach, -reach, reach, reach);
}

}  // namespace platform
