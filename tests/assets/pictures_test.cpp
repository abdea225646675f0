// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#include "assets/pictures.h"

#include <QDir>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace assets {
namespace {

// The mean difference of two pictures on the windows' colour, by channel.
double difference(const QPixmap& one, const QPixmap& other) {
    const QImage a = one.toImage().convertToFormat(QImage::Format_ARGB32_Premultiplied);
    const QImage b = other.toImage().convertToFormat(QImage::Format_ARGB32_Premultiplied);
    EXPECT_EQ(a.size(), b.size());
    double sum = 0;
    for (qsizetype i = 0; i < a.sizeInBytes(); ++i) {
        sum += std::abs(a.constBits()[i] - b.constBits()[i]);
    }
    return sum / static_cast<double>(a.sizeInBytes());
}

TEST(Pictures, EachIsItsFileAtItsSizeAndDrawnAnewAtAnyOther) {
    const platform::Picture none = picture(u""_s);  // from now on the files can be listed
    EXPECT_TRUE(none.inPixels(none.size()).isNull());
    const QStringList files = QDir(u":/pictures"_s).entryList();
    EXPECT_EQ(files.size(), 19);
    for (const QString& file : files) {
        const platform::Picture picture = assets::picture(file);
        const QPixmap natural(u":/pictures/"_s + file);
        EXPECT_EQ(difference(picture.inPixels(natural.size()), natural), 0) << qPrintable(file);
        for (const QSize size : {natural.size() * 1.25, natural.size() * 3, natural.size() + QSize(1, 0)}) {
            const QPixmap stretched = natural.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
            const double off = difference(picture.inPixels(size), stretched);
            EXPECT_GT(off, 0.01) << qPrintable(file) << " is only stretched";
            EXPECT_LT(off, 15) << qPrintable(file) << " shows something else";
        }
    }
}

}  // namespace
}  // namespace assets
