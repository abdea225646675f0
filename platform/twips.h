// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QRect>

namespace platform {

/// The windows are laid out in twips: 15 to a layout pixel.
inline constexpr int twipsPerPixel = 15;

/// The nearest whole number of layout pixels for a place or length in twips; a half is rounded away from zero.
constexpr int toPixels(int twips) {
    constexpr int half = twipsPerPixel / 2;
    return (twips < 0 ? twips - half : twips + half) / twipsPerPixel;
}

constexpr int toTwips(int pixels) {
    return pixels * twipsPerPixel;
}

/// A place inside its container and a size, in twips.
struct Box {
    int Left;
    int Top;
    int Width;
    int Height;
};

inline QRect toPixels(const Box& box) {
    return {toPixels(box.Left), toPixels(box.Top), toPixels(box.Width), toPixels(box.Height)};
}

}  // namespace platform
