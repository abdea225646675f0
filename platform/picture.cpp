// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#include "platform/picture.h"

#include <algorithm>
#include <utility>
#include <vector>

#include <QPainter>

namespace platform {

struct Picture::Rendered {
    QPixmap natural;
    Renderer render;
    std::vector<QPixmap> others;  // renderings at other sizes, the newest at the end
};

Picture::Picture(const QPixmap& natural, Renderer renderer)
    : shared(std::make_shared<Rendered>(Rendered{natural, std::move(renderer), {}})) {}

QSize Picture::size() const {
    return shared == nullptr ? QSize() : shared->natural.size();
}

QPixmap Picture::inPixels(QSize pixels) const {
    if (shared == nullptr || pixels.isEmpty()) {
        return {};
    }
    if (pixels == size()) {
        return shared->natural;
    }
    auto& others = shared->others;
    const auto found = std::ranges::find(others, pixels, &QPixmap::size);
    if (found != others.end()) {
        return *found;
    }
    // At one scale, rounding gives a picture at most four sizes. If there are more, the oldest size belongs to an
    // earlier scale and is no longer needed.
    constexpr std::size_t most = 4;
    if (others.size() == most) {
        others.erase(others.begin());
    }
    const QImage image = shared->render(pixels);
    others.push_back(image.isNull() ? shared->natural.scaled(pixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                                    : QPixmap::fromImage(image));
    return others.back();
}

Picture Picture::onBackground(const QColor& colour) const {
    if (shared == nullptr) {
        return {};
    }
    const auto compose = [colour](const QPixmap& picture) {
        QPixmap opaque(picture.size());
        opaque.fill(colour);
        QPainter(&opaque).drawPixmap(0, 0, picture);
        return opaque;
    };
    return {compose(inPixels(size())),
            [original = *this, compose](QSize pixels) { return compose(original.inPixels(pixels)).toImage(); }};
}

}  // namespace platform
