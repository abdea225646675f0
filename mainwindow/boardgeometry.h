// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>

#include <QPoint>
#include <QRect>

#include "rules/board.h"

namespace mainwindow {

/// The side of a cell, in twips.
inline constexpr int Pas = 300;

/// Left and top of the board inside the window, in twips.
inline constexpr int boardOrigin = 500;

/// A place inside the window, in twips.
struct Place {
    int Left;
    int Top;
};

/// The place of cell i of a board.
Place placeOf(const rules::Board& board, rules::CellIndex i);

/// The area of cell i, in pixels.
QRect cellArea(const rules::Board& board, rules::CellIndex i);

/// The area of all cells, in pixels.
QRect boardArea(const rules::Board& board);

/// The cell under a point of the window, in pixels; none beside the board.
std::optional<rules::CellIndex> cellAt(const rules::Board& board, QPoint point);

/// The columns and rows that an area of the window touches, in pixels: x and width count columns, y and
/// height rows. Empty beside the board.
QRect cellsTouching(const rules::Board& board, const QRect& area);

}  // namespace mainwindow
