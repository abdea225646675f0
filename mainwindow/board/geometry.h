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

/// The distance of cell 0 from the left edge and from the top edge of the window, in twips.
inline constexpr int boardOrigin = 500;

/// The width of the margin around the cells, in pixels. The ring of the cursor extends into the margin.
inline constexpr int boardMargin = 3;

/// The area of the board's widget inside the window, in pixels. It contains all cells and the margin.
QRect boardArea(const rules::Board& board);

/// The area of cell i inside the board's widget, in pixels.
QRect cellArea(const rules::Board& board, rules::CellIndex i);

/// The cell at a point of the board's widget, in pixels. Returns nothing if the point is in no cell.
std::optional<rules::CellIndex> cellAt(const rules::Board& board, QPoint point);

/// The cells that overlap an area of the board's widget. The area is in pixels. The result is in cells: its left and
/// right are columns, its top and bottom are rows. The result is empty if the area overlaps no cell.
QRect cellsTouching(const rules::Board& board, const QRect& area);

}  // namespace mainwindow
