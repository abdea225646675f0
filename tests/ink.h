// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdlib>

#include <QPixmap>
#include <gtest/gtest.h>

#include "platform/label.h"
#include "platform/look.h"

/// How much a picture differs from the background colour of the windows.
inline int ink(const QPixmap& picture) {
    const QImage image = picture.toImage();
    int sum = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            sum += std::abs(qGray(image.pixel(x, y)) - qGray(platform::steelBlue));
        }
    }
    return sum;
}

/// Expects that a label shows its whole text in this font: it has as much ink as a label of Qt with more room. A
/// tolerance of about one pixel is for roundings.
inline void expectWholeText(platform::Label& label, const QFont& font) {
    constexpr int room = 20;
    QLabel roomy(label.text());
    roomy.setFont(font);
    roomy.setPalette(label.palette());
    roomy.setAlignment(label.alignment());
    roomy.setWordWrap(label.wordWrap());
    roomy.setMargin(room);
    roomy.resize(label.width() + 2 * room + (label.wordWrap() ? 0 : 400), 200);
    EXPECT_NEAR(ink(label.grab()), ink(roomy.grab()), 200) << qPrintable(label.text());
}
