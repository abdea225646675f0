// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>
#include <memory>

#include <QPixmap>

namespace platform {

/// A picture that is sharp at every scale. At its natural size it is the picture of its file. At every other size it is
/// rendered from its vector source. Copies of a Picture share their renderings.
class Picture {
  public:
    /// Renders the picture at a size in screen pixels. Returns a null image on failure.
    using Renderer = std::function<QImage(QSize pixels)>;

    /// An empty picture, which draws nothing.
    Picture() = default;
    Picture(const QPixmap& natural, Renderer renderer);

    /// The natural size, in pixels. An empty picture has an empty size.
    QSize size() const;

    /// The picture at a size in screen pixels. If rendering fails, the picture of the natural size is stretched.
    QPixmap inPixels(QSize pixels) const;

    /// The picture on an opaque background. Qt copies an opaque picture to the screen instead of blending it.
    /// An empty picture stays empty.
    Picture onBackground(const QColor& colour) const;

    /// True if both are copies of one Picture, or both are empty.
    bool operator==(const Picture&) const = default;

  private:
    struct Rendered;
    std::shared_ptr<Rendered> shared;
};

}  // namespace platform
