// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#include "assets/pictures.h"

#include <QDir>
#include <QPainter>
#include <gtest/gtest.h>

#include "platform/look.h"

using namespace Qt::StringLiterals;

TEST(Pictures, AreTheirFilesAtTheNaturalSizeAndDrawnFromTheirSourcesAtAnyOther) {
    EXPECT_EQ(assets::picture(u"none.gif"_s), platform::Picture());
    const QStringList names = QDir(u":/pictures"_s).entryList();
    EXPECT_EQ(names.size(), 19);
    for (const QString& name : names) {
        SCOPED_TRACE(qPrintable(name));
        const auto picture = assets::picture(name).onBackground(platform::steelBlue);
        const platform::Picture fileAlone(QPixmap(u":/pictures/"_s + name), [](QSize) { return QImage(); });
        const auto file = fileAlone.onBackground(platform::steelBlue);
        EXPECT_EQ(picture.inPixels(file.size()).toImage(), file.inPixels(file.size()).toImage());
        for (const int across : {1, 2}) {
            const QSize size(file.size().width() * across, file.size().height() * 3);
            QPixmap difference = file.inPixels(size);
            EXPECT_EQ(difference.size(), size);
            EXPECT_NE(picture.inPixels(size).toImage(), difference.toImage()) << "the file is only stretched";
            QPainter painter(&difference);
            painter.setCompositionMode(QPainter::CompositionMode_Difference);
            painter.drawPixmap(0, 0, picture.inPixels(size));
            painter.end();
            const QPixmap mean = difference.scaled(1, 1, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
            EXPECT_LT(mean.toImage().pixelColor(0, 0).value(), 15) << "the drawing shows something else";
        }
    }
}
