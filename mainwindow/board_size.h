// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string_view>

namespace mainwindow {

struct BoardSize {
    int NbCol;
    int NbLig;
    bool operator==(const BoardSize&) const = default;
};

/// The space for a board, in twips: the screen, and the side panel beside the board.
struct Space {
    int screenWidth;
    int screenHeight;
    int panelWidth;
};

/// The whole number at the start of a text, after blanks and with an optional sign; the rest of the text, a fraction
/// included, is ignored. 0 if there is no such number. At most a million either way.
int leadingNumber(std::u16string_view text);

/// The size of the board for a request: clamped to 8 to 1000 columns and 14 to 1000 rows, then reduced until the board
/// fits the screen and `rules::maxCells`. At least one column and one row remain.
BoardSize fitBoard(BoardSize request, const Space& space);

}  // namespace mainwindow
