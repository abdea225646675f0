// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#include "mainwindow/boardgeometry.h"

#include "platform/twips.h"

namespace mainwindow {
namespace {

// A cell is a whole number of pixels wide, so cells stay aligned with each other wherever rounding puts the
// first.
constexpr int side = platform::toPixels(Pas);
constexpr int origin = platform::toPixels(boardOrigin);
static_assert(side * platform::twipsPerPixel == Pas);

}  // namespace

Place placeOf(const rules::Board& board, rules::CellIndex i) {
    const auto [col, row] = board.positionOf(i);
    return {boardOrigin + col * Pas, boardOrigin + row * Pas};
}

QRect cellArea(const rules::Board& board, rules::CellIndex i) {
    const auto [Left, Top] = placeOf(board, i);
    return {platform::toPixels(Left), platform::toPixels(Top), side, side};
}

QRect boardArea(const rules::Board& board) {
    return {origin, origin, board.NbCol * side, board.NbLig * side};
}

std::optional<rules::CellIndex> cellAt(const rules::Board& board, QPoint point) {
    const QRect cell = cellsTouching(board, {point, point});
    if (cell.isEmpty()) {
        return std::nullopt;
    }
    return board.indexOf({cell.x(), cell.y()});
}

QRect cellsTouching(const rules::Board& board, const QRect& area) {
    const QRect part = (area & boardArea(board)).translated(-origin, -origin);
    if (part.isEmpty()) {
        return {};
    }
    const QPoint first(part.left() / side, part.top() / side);
    const QPoint last(part.right() / side, part.bottom() / side);
    return {first, last};
}

}  // namespace mainwindow
