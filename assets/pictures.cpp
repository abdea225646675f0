// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#include "assets/pictures.h"

#include <algorithm>
#include <array>

#include <QFile>
#include <QFileInfo>
#include <QTransform>

#include "platform/svg.h"

using namespace Qt::StringLiterals;

// This function is in no namespace: Q_INIT_RESOURCE looks for its function in the namespace around it, and Qt defines
// that function in the global namespace.
static void ensureResources() {
    Q_INIT_RESOURCE(pictures);
}

namespace assets {
namespace {

/// The vector source of a picture: a part of an SVG drawing. `place` is the top left corner of the part, in pixels of
/// the drawing. The part has the size of the picture's bitmap.
struct Source {
    QLatin1String name;
    const char* drawing;
    QPoint place{};
    const char* style = nullptr;
    bool turned = false;  ///< rotated by 180 degrees
};

constexpr auto sources = std::to_array<Source>({
    {"ir"_L1, "ball.svg", {}, "ir.css"}, {"ib"_L1, "ball.svg", {}, "ib.css"},
    {"iv"_L1, "ball.svg", {}, "iv.css"}, {"ij"_L1, "ball.svg", {}, "ij.css"},
    {"ip"_L1, "ball.svg", {}, "ip.css"}, {"ig"_L1, "ball.svg", {}, "ig.css"},
    {"button-normal"_L1, "button.svg"},  {"button-hover"_L1, "button.svg", {}, nullptr, true},
    {"HG"_L1, "frame.svg", {0, 0}},      {"H"_L1, "frame.svg", {16, 0}},
    {"HD"_L1, "frame.svg", {32, 0}},     {"G"_L1, "frame.svg", {0, 16}},
    {"D"_L1, "frame.svg", {32, 16}},     {"BG"_L1, "frame.svg", {0, 32}},
    {"B"_L1, "frame.svg", {16, 32}},     {"BD"_L1, "frame.svg", {32, 32}},
    {"about"_L1, "about.svg"},           {"help"_L1, "help.svg"},
    {"zampotine"_L1, "zampotine.svg"},
});

QByteArray contents(const char* source) {
    QFile file(u":/sources/%1"_s.arg(QLatin1String(source)));
    return source != nullptr && file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QImage draw(const QString& name, QSize natural, QSize pixels) {
    const auto* const source = std::ranges::find(sources, name, &Source::name);
    if (source == sources.end()) {
        return {};
    }
    const platform::SvgPart part{contents(source->drawing), contents(source->style), {source->place, natural}};
    const QImage image = platform::drawSvg(part, pixels);
    return source->turned ? image.transformed(QTransform::fromScale(-1, -1)) : image;
}

}  // namespace

platform::Picture picture(const QString& name) {
    ensureResources();
    const QFileInfo file(name);
    // The suffix tells Qt the format. Without a format, Qt would try every image plugin.
    const QPixmap natural(u":/pictures/"_s + name, file.suffix().toLatin1().constData());
    if (natural.isNull()) {
        return {};
    }
    return {natural,
            [base = file.baseName(), size = natural.size()](QSize pixels) { return draw(base, size, pixels); }};
}

}  // namespace assets
