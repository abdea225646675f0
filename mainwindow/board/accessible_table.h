// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

namespace mainwindow {

class BoardWidget;

/// Presents the board to screen readers as a table whose cells can be read and pressed, and reports to them where the
/// cursor is and which of the cells they know have changed. Call it once for a board.
void makeAccessible(BoardWidget& board);

}  // namespace mainwindow
