// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#include "mainwindow/picture_frame.h"

#include "assets/pictures.h"
#include "platform/pixel_painter.h"
#include "platform/twips.h"

using namespace Qt::StringLiterals;

namespace mainwindow {
namespace {

constexpr int side = 240;  // the side of a piece, in twips

QPoint at(int Left, int Top) {
    return {platform::toPixels(Left), platform::toPixels(Top)};
}

}  // namespace

PictureFrame::PictureFrame()
    : H{{assets::picture(u"H.bmp"_s), {}}},
      B{{assets::picture(u"B.bmp"_s), {}}},
      G{{assets::picture(u"G.bmp"_s), {}}},
      D{{assets::picture(u"D.bmp"_s), {}}},
      HG{assets::picture(u"HG.bmp"_s), {}},
      HD{assets::picture(u"HD.bmp"_s), {}},
      BG{assets::picture(u"BG.bmp"_s), {}},
      BD{assets::picture(u"BD.bmp"_s), {}} {}

void PictureFrame::clear() {
    for (auto* edge : {&H, &B, &G, &D}) {
        edge->resize(1);
    }
}

void PictureFrame::rebuild(int W, int Ht) {
    HG.place = at(0, 0);
    HD.place = at(W - side, 0);
    BG.place = at(0, Ht - side);
    BD.place = at(W - side, Ht - side);

    const int columns = W / side + 1;
    H.resize(columns, H[0]);
    B.resize(columns, B[0]);
    for (int i = 0; i < columns; ++i) {
        const int Left = (i + 1) * side;
        H[i].place = at(Left, 0);
        B[i].place = at(Left, Ht - side);
    }

    const int rows = Ht / side + 1;
    G.resize(rows, G[0]);
    D.resize(rows, D[0]);
    for (int i = 0; i < rows; ++i) {
        const int Top = (i + 1) * side;
        G[i].place = at(0, Top);
        D[i].place = at(W - side, Top);
    }
}

QRect PictureFrame::inside() const {
    return {at(side, side), BD.place - QPoint(1, 1)};
}

template <typename Visit>
void PictureFrame::forEachPiece(Visit visit) const {
    for (const auto* edge : {&H, &B, &G, &D}) {
        for (const Piece& piece : *edge) {
            visit(piece);
        }
    }
    for (const auto* corner : {&HG, &HD, &BG, &BD}) {
        visit(*corner);
    }
}

void PictureFrame::draw(platform::PixelPainter& painter) const {
    forEachPiece([&](const Piece& piece) { painter.draw(piece.place, piece.picture); });
}

bool PictureFrame::contains(QPoint point) const {
    bool isFound = false;
    forEachPiece(
        [&](const Piece& piece) { isFound = isFound || QRect(piece.place, piece.picture.size()).contains(point); });
    return isFound;
}

}  // namespace mainwindow
