// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#include "mainwindow/cellpictures.h"

#include <algorithm>

#include "assets/pictures.h"
#include "mainwindow/boardgeometry.h"

using namespace Qt::StringLiterals;

namespace mainwindow {

using rules::CellIndex;

namespace {

// The place of a code's picture among the images.
std::ptrdiff_t imageOf(rules::Code code) {
    const auto* const colour = std::ranges::find(rules::codes, code);
    return colour == rules::codes.end() ? 0 : colour - rules::codes.begin() + 1;
}

}  // namespace

CellPictures::CellPictures() : c(1) {
    for (std::size_t k = 0; k < rules::codes.size(); ++k) {
        const QChar code = QLatin1Char(static_cast<char>(rules::codes[k]));
        images[k + 1] = assets::picture(u"i%1.gif"_s.arg(code));
    }
}

void CellPictures::clear() {
    c.resize(1);
}

void CellPictures::create(const rules::Board& board) {
    c.resize(board.cells.size(), c[0]);
    for (std::size_t j = 0; j < c.size(); ++j) {
        const auto [Left, Top] = placeOf(board, static_cast<CellIndex>(j));
        c[j].Left = Left;
        c[j].Top = Top;
        c[j].Visible = true;
    }
}

void CellPictures::show(const rules::Board& board, CellIndex i) {
    c[i].image = images[imageOf(board[i])];
}

void CellPictures::showAll(const rules::Board& board) {
    for (std::size_t j = 0; j < c.size(); ++j) {
        show(board, static_cast<CellIndex>(j));
    }
}

void CellPictures::draw(platform::PixelPainter& painter, const rules::Board& board, const QRegion& region) const {
    for (const QRect& area : region) {
        const QRect cells = cellsTouching(board, area);
        for (int col = cells.left(); col <= cells.right(); ++col) {
            for (int row = cells.top(); row <= cells.bottom(); ++row) {
                const CellIndex i = board.indexOf({col, row});
                const QRect cell = cellArea(board, i);
                const auto* const first =
                    std::ranges::find_if(region, [&](const QRect& other) { return other.intersects(cell); });
                if (first == &area) {
                    platform::draw(painter, c[i]);
                }
            }
        }
    }
}

}  // namespace mainwindow
