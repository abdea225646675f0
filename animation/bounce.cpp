// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#include "animation/bounce.h"

#include <cmath>

namespace animation {
namespace {

constexpr int step = 10;

int direction(double u) {
    const int t = static_cast<int>(u * 100 + 1) - 50;
    return t < 0 ? -1 : 1;
}

int position(int room, double u) {
    return static_cast<int>(std::lrint(room * u));  // rounds a half to the even number
}

int turned(int Dir, int Pos, int room) {
    if (Pos < 0) {
        return 1;
    }
    return Pos > room ? -1 : Dir;
}

}  // namespace

Balls scatter(int W, int H, const RandomSource& random) {
    Balls balls{};
    for (Ball& ball : balls) {
        ball.DirX = direction(random());
        ball.DirY = direction(random());
        ball.PosX = position(W - side, random());
        ball.PosY = position(H - side, random());
    }
    return balls;
}

void pass(Balls& balls, int W, int H) {
    for (Ball& ball : balls) {
        ball.DirX = turned(ball.DirX, ball.PosX, W - side);
        ball.DirY = turned(ball.DirY, ball.PosY, H - side);
        ball.PosX += step * ball.DirX;
        ball.PosY += step * ball.DirY;
    }
}

}  // namespace animation
