#include "platform/picture.h"

#include <QPainter>

#include "platform/twips.h"

namespace platform {

QRect Picture::area() const {
    return {QPoint(toPixels(Left), toPixels(Top)), image.size()};
}

void draw(QPainter& painter, const Picture& picture) {
    if (picture.Visible && !picture.image.isNull()) {
        painter.drawPixmap(toPixels(picture.Left), toPixels(picture.Top), picture.image);
    }
}

}  // namespace platform
