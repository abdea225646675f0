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

/// Left and top of cell 0 inside the window, in twips.
inline constexpr int boardOrigin = 500;

/// The width of the margin around the cells, in pixels: the cursor's ring extends into it.
inline constexpr int boardMargin = 3;

/// The area of the board's widget inside the window, in pixels: all cells and the margin around them.
QRect boardArea(const rules::Board& board);

/// The area of cell i inside the board's widget, in pixels.
QRect cellArea(const rules::Board& board, rules::CellIndex i);

/// The cell at a point of the board's widget, in pixels; nothing for a point beside the cells.
std::optional<rules::CellIndex> cellAt(const rules::Board& board, QPoint point);

/// The cells that an area of the board's widget touches, in pixels: x and width count columns, y and height rows.
/// Empty if the area touches no cell.
QRect cellsTouching(const rules::Board& board, const QRect& area);

}  // namespace mainwindow
