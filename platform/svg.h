// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QImage>
#include <QRect>

namespace platform {

/// A rectangular part of an SVG drawing.
struct SvgPart {
    QByteArray svg;  ///< the whole drawing
    QByteArray css;  ///< styles that override those of the drawing; may be empty
    QRect area;      ///< the part, in pixels of the drawing
};

/// Draws the part on a transparent background, stretched to a size in pixels. Returns a null image if librsvg is not
/// installed, if it cannot read the drawing, or if the size is empty.
QImage drawSvg(const SvgPart& part, QSize pixels);

}  // namespace platform
