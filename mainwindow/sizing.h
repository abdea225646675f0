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

/// The room that a board has, in twips: the screen's size and the width of the side panel beside the board.
struct Room {
    int screenWidth;
    int screenHeight;
    int panelWidth;
};

/// The whole number at the start of a text: leading blanks are skipped, a sign is taken, a fraction and all
/// the rest are dropped. 0 if the text does not begin with a number; numbers beyond a million stay at a
/// million.
int leadingNumber(std::u16string_view text);

/// The board that is dealt for a request: 8 to 1000 columns and 14 to 1000 rows, then as many of them as fit
/// the screen (at least one of each) and as cell indices can number.
BoardSize fitBoard(BoardSize request, const Room& room);

}  // namespace mainwindow
