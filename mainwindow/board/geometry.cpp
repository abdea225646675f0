// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#include "mainwindow/board/geometry.h"

#include "platform/twips.h"

namespace mainwindow {
namespace {

constexpr int side = platform::toPixels(Pas);
constexpr int origin = platform::toPixels(boardOrigin);
// If Pas were not a whole number of pixels, rounding would leave gaps between the cells.
static_assert(side * platform::twipsPerPixel == Pas);

}  // namespace

QRect boardArea(const rules::Board& board) {
    const QRect cells(origin, origin, board.NbCol * side, board.NbLig * side);
    return cells.adjusted(-boardMargin, -boardMargin, boardMargin, boardMargin);
}

QRect cellArea(const rules::Board& board, rules::CellIndex i) {
    const auto [col, row] = board.positionOf(i);
    return {boardMargin + col * side, boardMargin + row * side, side, side};
}

std::optional<rules::CellIndex> cellAt(const rules::Board& board, QPoint point) {
    const QRect cell = cellsTouching(board, {point, point});
    if (cell.isEmpty()) {
        return std::nullopt;
    }
    return board.indexOf({cell.x(), cell.y()});
}

QRect cellsTouching(const rules::Board& board, const QRect& area) {
    const QRect cells(boardMargin, boardMargin, board.NbCol * side, board.NbLig * side);
    const QRect part = (area & cells).translated(-boardMargin, -boardMargin);
    if (part.isEmpty()) {
        return {};
    }
    const QPoint first(part.left() / side, part.top() / side);
    const QPoint last(part.right() / side, part.bottom() / side);
    return {first, last};
}

}  // namespace mainwindow
