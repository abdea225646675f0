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

/// The sizes that limit the board, in twips.
struct Space {
    int screenWidth;
    int screenHeight;
    int panelWidth;
};

/// The whole number at the start of a text, or 0 if there is none. Leading blanks and tabs are skipped. The number may
/// have a sign. The text after the number is ignored, even a fraction. The result is at least -1,000,000 and at most
/// 1,000,000.
int leadingNumber(std::u16string_view text);

/// The size of the board for a requested size. The columns are clamped to the range 8 to 1000, the rows to the range
/// 14 to 1000. Then the size is reduced until the board fits on the screen and has at most `rules::maxCells` cells. At
/// least one column and one row remain.
BoardSize fittingSize(BoardSize request, const Space& space);

}  // namespace mainwindow
