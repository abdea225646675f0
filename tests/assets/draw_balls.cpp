// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

// Draws the balls at the scales of screens, for the colours to be looked at: draw_balls FOLDER
// One picture each: FOLDER/1.25/ir.png.

#include <QDir>
#include <QGuiApplication>

#include "assets/pictures.h"

using namespace Qt::StringLiterals;

int main(int argc, char* argv[]) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    bool drawn = argc == 2;
    for (const double scale : {1.0, 1.1, 1.25, 1.5, 1.75, 2.0, 3.0}) {
        const QDir folder(u"%1/%2"_s.arg(QString::fromLocal8Bit(argv[1])).arg(scale));
        folder.mkpath(u"."_s);
        for (const char* ball : {"ir", "ib", "iv", "ij", "ip", "ig"}) {
            const platform::Picture picture = assets::picture(u"%1.gif"_s.arg(QLatin1String(ball)));
            drawn =
                picture.inPixels(picture.size() * scale).save(folder.filePath(u"%1.png"_s.arg(QLatin1String(ball)))) &&
                drawn;
        }
    }
    return drawn ? 0 : 1;
}
