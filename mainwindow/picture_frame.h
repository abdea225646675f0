// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include <vector>

#include <QPoint>
#include <QRect>

#include "platform/picture.h"

namespace platform {
class PixelPainter;
}

namespace mainwindow {

/// The border of the main window: a row of small pictures along each edge, and one picture at each corner.
class PictureFrame {
  public:
    PictureFrame();

    /// Removes all pieces except the corners and the first piece of each edge.
    void clear();

    /// Rebuilds the border for a window of W by Ht twips.
    void rebuild(int W, int Ht);

    /// The area of the window that the border surrounds, in pixels.
    QRect inside() const;

    /// Draws the border. The corners are in front of the edges.
    void draw(platform::PixelPainter& painter) const;

    /// Whether a point of the window, in pixels, is on the border.
    bool contains(QPoint point) const;

  private:
    struct Piece {
        platform::Picture picture;
        QPoint place;  ///< top left corner in the window, in pixels
    };

    template <typename Visit>
    void forEachPiece(Visit visit) const;

    std::vector<Piece> H, B, G, D;  // pieces of the top, bottom, left and right edge
    Piece HG, HD, BG, BD;           // top left, top right, bottom left and bottom right corners
};

}  // namespace mainwindow
