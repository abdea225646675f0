// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QPainter>

#include "platform/picture.h"

class QRegion;

namespace platform {

/// Paints pictures and outlines on a widget in whole screen pixels: at no scale is a picture blurred across two pixels
/// or separated from its neighbour by a seam. Places and sizes are in layout pixels.
class PixelPainter {
  public:
    explicit PixelPainter(QWidget& widget);

    /// The screen pixels of an area, in the coordinates of the painter: each edge is rounded to the nearest one.
    QRect pixels(const QRect& area) const;

    /// Draws a picture.
    void draw(QPoint place, const Picture& picture);
    /// Draws the part of a picture that is inside a region.
    void draw(QPoint place, const Picture& picture, const QRegion& region);
    /// Draws the outline of an area. Thickness of each side: one layout pixel, rounded to whole screen pixels.
    void drawOutline(const QRect& area, const QColor& colour);
    /// Draws an image whose size is in screen pixels.
    void draw(QPoint place, const QPixmap& image);

  private:
    QPainter painter;
    QTransform toScreen;
};

/// The area, one pixel larger on each side at fractional scales, where rounding may paint outside it.
QRect withReach(const QWidget& widget, const QRect& area);

}  // namespace platform
