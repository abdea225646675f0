// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>

#include <QRect>

#include "rules/board.h"

class QPainter;

namespace mainwindow {

/// The position to which a key (Qt::Key) moves the keyboard's cursor; the edges of the board stop it. Nothing for a key
/// that does not move the cursor.
std::optional<rules::Position> cursorMovedBy(int key, rules::Position from, const rules::Board& board);

/// The area of the ring that shows the cursor around a cell, in pixels.
QRect cursorRing(const QRect& cell);

/// Draws the ring that shows the cursor around a cell.
void drawCursor(QPainter& painter, const QRect& cell);

}  // namespace mainwindow
