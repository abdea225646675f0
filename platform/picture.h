// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QRect>

#include "platform/artwork.h"

namespace platform {

class PixelPainter;

/// A picture control that its window paints: an element of a control array too large for widgets of its own.
struct Picture {
    int Left = 0;  ///< twips, inside the window
    int Top = 0;   ///< twips, inside the window
    bool Visible = false;
    Artwork image;

    /// The area it covers, in pixels: the natural size of its image.
    QRect area() const;
};

/// Draws a picture at its place, unless it is hidden or has no image.
void draw(PixelPainter& painter, const Picture& picture);

}  // namespace platform
