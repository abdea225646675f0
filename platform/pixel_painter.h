// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QPainter>

#include "platform/artwork.h"

class QRegion;

namespace platform {

/// Paints on a widget in whole pixels of the screen, so that at no scale a picture is blurred between two of them or
/// leaves a seam beside its neighbour. Places and sizes are given in the pixels of the layout.
class PixelPainter {
  public:
    explicit PixelPainter(QWidget& widget);

    /// The pixels of the screen, in the painter's own count, that an area covers: each edge lies on the nearest one.
    QRect pixels(const QRect& area) const;

    /// Draws a picture.
    void draw(QPoint place, const Artwork& picture);
    /// Draws no more of a picture than lies in a region.
    void draw(QPoint place, const Artwork& picture, const QRegion& region);
    /// Draws the outline of an area, all its sides equally thick: the screen's next to one pixel of the layout.
    void drawOutline(const QRect& area, const QColor& colour);
    /// Draws an image that was made for the pixels of the screen.
    void draw(QPoint place, const QPixmap& image);

  private:
    QPainter painter;
    QTransform toScreen;
};

/// An area of a widget with what rounding may have painted beyond it: a pixel more on each side, where a pixel of the
/// layout is no whole number of the screen's.
QRect withReach(const QWidget& widget, const QRect& area);

}  // namespace platform
