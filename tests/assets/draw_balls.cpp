// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

// Usage: draw_balls FOLDER
// Draws the balls at the usual scales of screens, each into a picture such as FOLDER/1.25/ir.png.

#include <QDir>
#include <QGuiApplication>

#include "assets/pictures.h"

using namespace Qt::StringLiterals;

int main(int argc, char* argv[]) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    for (const double scale : {1.0, 1.1, 1.25, 1.5, 1.75, 2.0, 3.0}) {
        const QDir folder(QGuiApplication::arguments().at(1) + u"/%1"_s.arg(scale));
        folder.mkpath(u"."_s);
        for (const QString& ball : {u"ir"_s, u"ib"_s, u"iv"_s, u"ij"_s, u"ip"_s, u"ig"_s}) {
            const platform::Picture picture = assets::picture(ball + u".gif"_s);
            picture.inPixels(picture.size() * scale).save(folder.filePath(ball + u".png"_s));
        }
    }
}
