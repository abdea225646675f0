// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>
#include <memory>

#include <QPixmap>

namespace platform {

/// A picture that is sharp at every scale: its file at its natural size, a rendering of its vector source at every
/// other size. Copies share what was rendered.
class Picture {
  public:
    /// Renders the picture at a size in device pixels; returns a null image if it cannot.
    using Renderer = std::function<QImage(QSize pixels)>;

    /// No picture.
    Picture() = default;
    Picture(const QPixmap& natural, Renderer renderer);

    /// The natural size, in pixels; empty if there is no picture.
    QSize size() const;

    /// The picture at a size in device pixels. If it cannot be rendered, it is stretched.
    QPixmap inPixels(QSize pixels) const;

    /// The same picture on an opaque ground, so that it is copied to the screen instead of blended.
    /// No picture stays none.
    Picture on(const QColor& ground) const;

    /// Whether both are the same picture.
    bool operator==(const Picture&) const = default;

  private:
    struct Rendered;
    std::shared_ptr<Rendered> shared;
};

}  // namespace platform
