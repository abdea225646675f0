// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>

#include <QRect>

#include "rules/board.h"

class QPainter;

namespace mainwindow {

/// The position to which an arrow key, Home, End, Page Up or Page Down (`key`, a Qt::Key) moves the cursor. The cursor
/// stops at the edges of the board. Returns nothing for all other keys.
std::optional<rules::Position> cursorMovedBy(int key, rules::Position from, const rules::Board& board);

/// The bounds of the ring that marks the cell with the cursor. `cell` is the area of that cell. Both are in pixels.
QRect cursorRing(const QRect& cell);

/// Draws the ring around a cell. `cell` is the area of the cell, in pixels.
void drawCursor(QPainter& painter, const QRect& cell);

}  // namespace mainwindow
