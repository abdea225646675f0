// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QPainter>

#include "platform/picture.h"

class QRegion;

namespace platform {

/// Paints pictures and outlines on a widget and rounds their edges to whole screen pixels. So edges stay sharp at every
/// scale, and there is no gap between adjacent pictures. Places and sizes are in layout pixels.
class PixelPainter {
  public:
    explicit PixelPainter(QWidget& widget);

    /// Converts an area from layout pixels to screen pixels. Each edge is rounded to the nearest whole screen pixel.
    QRect pixels(const QRect& area) const;

    /// Draws a picture at its natural size.
    void draw(QPoint place, const Picture& picture);
    /// Draws the part of a picture that is inside a region.
    void draw(QPoint place, const Picture& picture, const QRegion& region);
    /// Draws an outline inside the edges of an area. Thickness: one layout pixel, rounded to whole screen pixels.
    void drawOutline(const QRect& area, const QColor& colour);
    /// Draws an image without scaling: each pixel of the image is one screen pixel.
    void draw(QPoint place, const QPixmap& image);

  private:
    QPainter painter;
    QTransform toScreen;
};

/// The area that may change when a picture or outline is painted in `area`. At whole scales, this is `area`. At
/// fractional scales, rounding may paint outside `area`, so the result is one layout pixel larger on each side.
QRect paintedArea(const QWidget& widget, const QRect& area);

}  // namespace platform
