// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include <vector>

#include <QPoint>

#include "platform/picture.h"

namespace platform {
class PixelPainter;
}

namespace mainwindow {

/// The border of small pictures along the four edges of the main window, with a picture at each corner.
class PictureFrame {
  public:
    PictureFrame();

    /// Removes all pieces except the first of each edge.
    void clear();

    /// Rebuilds the border for a window of this size, in twips.
    void rebuild(int W, int Ht);

    /// Draws the border. The corners are in front of the edges.
    void draw(platform::PixelPainter& painter) const;

    /// Whether a point of the window, in pixels, is on the border.
    bool contains(QPoint point) const;

  private:
    struct Piece {
        platform::Picture picture;
        QPoint place;  ///< in the window, in pixels
    };

    template <typename Visit>
    void forEachPiece(Visit visit) const;

    std::vector<Piece> H, B, G, D;  // top, bottom, left and right edge pieces
    Piece HG, HD, BG, BD;           // top left, top right, bottom left and bottom right corners
};

}  // namespace mainwindow
