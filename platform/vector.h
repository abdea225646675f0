// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QImage>
#include <QRect>

namespace platform {

/// A part of a vector drawing, in the drawing's own pixels.
struct VectorPart {
    QByteArray svg;
    QByteArray css;  ///< styles that go before the drawing's own; may be empty
    QRect area;
};

/// Draws the part on a clear ground, stretched to so many pixels. Returns a null image if the system has no library for
/// it or the drawing cannot be read.
QImage drawVector(const VectorPart& part, QSize pixels);

}  // namespace platform
