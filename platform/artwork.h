// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>
#include <memory>

#include <QPixmap>

namespace platform {

/// A picture of the program that is sharp at every scale: at its natural size it is what its file holds, at any other
/// it is drawn anew. Copies share what was drawn.
class Artwork {
  public:
    /// Draws the picture in so many device pixels; a null image if it cannot.
    using Draw = std::function<QImage(QSize pixels)>;

    /// No picture.
    Artwork() = default;
    Artwork(const QPixmap& natural, Draw draw);

    /// The natural size, in pixels; empty if there is no picture.
    QSize size() const;

    /// The picture in so many device pixels. A picture that cannot be drawn anew is stretched.
    QPixmap inPixels(QSize pixels) const;

    /// Whether both are the same picture.
    bool operator==(const Artwork&) const = default;

  private:
    struct Drawn;
    std::shared_ptr<Drawn> shared;
};

}  // namespace platform
