// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

namespace mainwindow {

class BoardWidget;

/// Presents the board to screen readers as a table. They can read and press each cell. They are told when the cursor
/// moves, when a cell that they have read changes its name, and when there is no group left. Call it once for a board,
/// before anything else asks for the board's accessible interface.
void makeAccessible(BoardWidget& board);

}  // namespace mainwindow
