// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QImage>
#include <QRect>

namespace platform {

/// A part of a vector drawing, in the pixels of the drawing.
struct VectorPart {
    QByteArray svg;
    QByteArray css;  ///< styles that override those of the drawing; may be empty
    QRect area;
};

/// Draws the part on a transparent ground, stretched to a size in pixels. Returns a null image if the library is not
/// installed or the drawing cannot be read.
QImage drawVector(const VectorPart& part, QSize pixels);

}  // namespace platform
