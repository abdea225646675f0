// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#include "mainwindow/boardgeometry.h"

#include <gtest/gtest.h>

namespace mainwindow {
namespace {

TEST(BoardGeometry, EveryPointOfACellIsItsCell) {
    const rules::Board board = rules::emptyBoard(217, 151);
    for (int i = 0; i < rules::maxCells; ++i) {
        const auto cell = static_cast<rules::CellIndex>(i);
        const QRect area = cellArea(board, cell);
        ASSERT_EQ(area.size(), QSize(20, 20));
        ASSERT_EQ(cellAt(board, area.topLeft()), cell);
        ASSERT_EQ(cellAt(board, area.bottomRight()), cell);
        ASSERT_EQ(cellsTouching(board, area).size(), QSize(1, 1));
    }
}

TEST(BoardGeometry, NoPointBesideTheBoardIsACell) {
    for (const QPoint point : {QPoint(32, 40), QPoint(40, 32), QPoint(213, 40), QPoint(40, 313), QPoint(-1, -1)}) {
        EXPECT_FALSE(cellAt(rules::emptyBoard(9, 14), point)) << point.x() << ", " << point.y();
    }
}

}  // namespace
}  // namespace mainwindow
