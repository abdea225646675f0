// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QRect>

namespace platform {

/// Windows are laid out in twips. A layout pixel has 15 twips.
inline constexpr int twipsPerPixel = 15;

/// Converts a place or length in twips to the nearest whole number of layout pixels.
constexpr int toPixels(int twips) {
    constexpr int half = twipsPerPixel / 2;
    return (twips < 0 ? twips - half : twips + half) / twipsPerPixel;
}

constexpr int toTwips(int pixels) {
    return pixels * twipsPerPixel;
}

/// A place and a size, in twips. The place is relative to the container.
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
