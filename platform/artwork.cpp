// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#include "platform/artwork.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace platform {

struct Artwork::Drawn {
    QPixmap natural;
    Draw draw;
    std::vector<QPixmap> others;  // the newest at the end
};

Artwork::Artwork(const QPixmap& natural, Draw draw)
    : shared(std::make_shared<Drawn>(Drawn{natural, std::move(draw), {}})) {}

QSize Artwork::size() const {
    return shared == nullptr ? QSize() : shared->natural.size();
}

QPixmap Artwork::inPixels(QSize pixels) const {
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
    // At one scale rounding asks for up to four sizes; those of an earlier scale are of no more use.
    constexpr std::size_t most = 4;
    if (others.size() == most) {
        others.erase(others.begin());
    }
    const QImage image = shared->draw(pixels);
    others.push_back(image.isNull() ? shared->natural.scaled(pixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                                    : QPixmap::fromImage(image));
    return others.back();
}

}  // namespace platform
