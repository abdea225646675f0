// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

namespace mainwindow {

class BoardCursor;

/// Makes the board known to screen readers as a table, whose cells say what they hold and can be pressed.
void makeBoardsAccessible();

/// Tells screen readers that the keyboard's focus is on the cell of the cursor, if the board has it.
void tellFocus(BoardCursor& board);

/// Tells screen readers of the cells that they know and that have changed.
void tellChanges(BoardCursor& board);

}  // namespace mainwindow
