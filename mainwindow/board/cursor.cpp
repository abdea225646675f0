// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#include "mainwindow/board/cursor.h"

#include <algorithm>
#include <utility>

#include <QPainter>

#include "mainwindow/board/geometry.h"

namespace mainwindow {

std::optional<rules::Position> cursorMovedBy(int key, rules::Position from, const rules::Board& board) {
    const rules::Position last{board.NbCol - 1, board.NbLig - 1};
    switch (key) {
        case Qt::Key_Left:
            return rules::Position{std::max(from.col - 1, 0), from.row};
        case Qt::Key_Right:
            return rules::Position{std::min(from.col + 1, last.col), from.row};
        case Qt::Key_Up:
            return rules::Position{from.col, std::max(from.row - 1, 0)};
        case Qt::Key_Down:
            return rules::Position{from.col, std::min(from.row + 1, last.row)};
        case Qt::Key_Home:
            return rules::Position{0, from.row};
        case Qt::Key_End:
            return rules::Position{last.col, from.row};
        case Qt::Key_PageUp:
            return rules::Position{from.col, 0};
        case Qt::Key_PageDown:
            return rules::Position{from.col, last.row};
        default:
            return std::nullopt;
    }
}

QRect cursorRing(const QRect& cell) {
    return cell.adjusted(-boardMargin, -boardMargin, boardMargin, boardMargin);
}

void drawCursor(QPainter& painter, const QRect& cell) {
    constexpr int thickness = 4;
    constexpr double inset = thickness / 2.0;
    constexpr double rounding = 4;
    const QRectF middle = QRectF(cursorRing(cell)).adjusted(inset, inset, -inset, -inset);
    painter.setRenderHint(QPainter::Antialiasing);
    // A white line between two black lines contrasts with every ball and with the background.
    for (const auto& [colour, width] : {std::pair{Qt::black, thickness}, std::pair{Qt::white, thickness / 2}}) {
        painter.setPen(QPen(colour, width));
        painter.drawRoundedRect(middle, rounding, rounding);
    }
}

}  // namespace mainwindow
