// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#include "mainwindow/pictureframe.h"

#include "assets/pictures.h"

using namespace Qt::StringLiterals;

namespace mainwindow {
namespace {

using platform::Picture;

// The side of a piece, in twips.
constexpr int side = 240;

Picture piece(const QString& picture) {
    return {.Visible = true, .image = assets::picture(picture)};
}

void place(Picture& picture, int Left, int Top) {
    picture.Left = Left;
    picture.Top = Top;
}

}  // namespace

PictureFrame::PictureFrame()
    : H{piece(u"H.bmp"_s)},
      B{piece(u"B.bmp"_s)},
      G{piece(u"G.bmp"_s)},
      D{piece(u"D.bmp"_s)},
      HG(piece(u"HG.bmp"_s)),
      HD(piece(u"HD.bmp"_s)),
      BG(piece(u"BG.bmp"_s)),
      BD(piece(u"BD.bmp"_s)) {}

void PictureFrame::clear() {
    for (auto* edge : {&H, &B, &G, &D}) {
        edge->resize(1);
    }
}

void PictureFrame::rebuild(int W, int Ht) {
    place(HG, 0, 0);
    place(HD, W - side, 0);
    place(BG, 0, Ht - side);
    place(BD, W - side, Ht - side);

    const int columns = W / side + 1;
    H.resize(columns, H[0]);
    B.resize(columns, B[0]);
    for (int i = 0; i < columns; ++i) {
        const int Left = (i + 1) * side;
        place(H[i], Left, 0);
        place(B[i], Left, Ht - side);
    }

    const int rows = Ht / side + 1;
    G.resize(rows, G[0]);
    D.resize(rows, D[0]);
    for (int i = 0; i < rows; ++i) {
        const int Top = (i + 1) * side;
        place(G[i], 0, Top);
        place(D[i], W - side, Top);
    }
}

template <typename Visit>
void PictureFrame::forEachPiece(Visit visit) const {
    for (const auto* edge : {&H, &B, &G, &D}) {
        for (const Picture& picture : *edge) {
            visit(picture);
        }
    }
    for (const auto* corner : {&HG, &HD, &BG, &BD}) {
        visit(*corner);
    }
}

void PictureFrame::draw(platform::PixelPainter& painter) const {
    forEachPiece([&](const Picture& picture) { platform::draw(painter, picture); });
}

bool PictureFrame::contains(QPoint point) const {
    bool found = false;
    forEachPiece([&](const Picture& picture) { found = found || picture.area().contains(point); });
    return found;
}

}  // namespace mainwindow
