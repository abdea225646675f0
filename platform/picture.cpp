// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#include "platform/picture.h"

#include "platform/pixel_painter.h"
#include "platform/twips.h"

namespace platform {

QRect Picture::area() const {
    return {QPoint(toPixels(Left), toPixels(Top)), image.size()};
}

void draw(PixelPainter& painter, const Picture& picture) {
    if (picture.Visible && !picture.image.size().isEmpty()) {
        painter.draw(picture.area().topLeft(), picture.image);
    }
}

}  // namespace platform
