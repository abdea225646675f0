// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include <array>
#include <vector>

#include "platform/picture.h"
#include "rules/board.h"

namespace mainwindow {

/// The pictures that show the cells of a board.
class CellPictures {
  public:
    CellPictures();

    /// Removes every picture but the first.
    void clear();

    /// Creates and places one picture for each cell of a board.
    void create(const rules::Board& board);

    /// Lets cell i show what it holds.
    void show(const rules::Board& board, rules::CellIndex i);
    /// Lets every cell show what it holds.
    void showAll(const rules::Board& board);

    /// Draws the cells that a region of the window touches, in pixels; each once, since edges are half transparent.
    void draw(platform::PixelPainter& painter, const rules::Board& board, const QRegion& region) const;

  private:
    std::vector<platform::Picture> c;
    std::array<platform::Artwork, 1 + rules::codes.size()>
        images;  // of the empty cell, then of the colours in their order
};

}  // namespace mainwindow
