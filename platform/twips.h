// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QRect>

namespace platform {

/// The unit in which the windows are laid out: 15 twips to a device-independent pixel.
inline constexpr int twipsPerPixel = 15;

/// The pixel nearest to a place or length in twips; a half goes away from zero.
constexpr int toPixels(int twips) {
    constexpr int half = twipsPerPixel / 2;
    return (twips < 0 ? twips - half : twips + half) / twipsPerPixel;
}

constexpr int toTwips(int pixels) {
    return pixels * twipsPerPixel;
}

/// A place and size in twips, relative to the inside of the container.
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
