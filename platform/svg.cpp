// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#include "platform/svg.h"

#include <memory>

#include "platform/svg_library.h"

namespace platform {
namespace {

template <typename Object, typename Release>
auto owned(Object* object, Release release) {
    return std::unique_ptr<Object, Release>(object, release);
}

const guint8* bytesOf(const QByteArray& text) {
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): librsvg reads unsigned bytes
    return reinterpret_cast<const guint8*>(text.constData());
}

}  // namespace

QImage drawSvg(const SvgPart& part, QSize pixels) {
    const SvgLibrary* const library = svgLibrary();
    QImage image(pixels, QImage::Format_ARGB32_Premultiplied);
    if (library == nullptr || image.isNull()) {
        return {};
    }
    const auto drawing = owned(library->newDrawing(bytesOf(part.svg), part.svg.size(), nullptr), library->unref);
    gdouble width = 0;
    gdouble height = 0;
    if (drawing == nullptr ||
        library->setStylesheet(drawing.get(), bytesOf(part.css), part.css.size(), nullptr) == FALSE ||
        library->intrinsicSize(drawing.get(), &width, &height) == FALSE) {
        return {};
    }
    image.fill(Qt::transparent);
    const auto surface = owned(library->newSurface(image.bits(), CAIRO_FORMAT_ARGB32, image.width(), image.height(),
                                                   static_cast<int>(image.bytesPerLine())),
                               library->destroySurface);
    const auto context = owned(library->newContext(surface.get()), library->destroyContext);
    library->scale(context.get(), double(pixels.width()) / part.area.width(),
                   double(pixels.height()) / part.area.height());
    library->translate(context.get(), -part.area.x(), -part.area.y());
    const RsvgRectangle whole{0, 0, width, height};
    const bool drawn = library->renderDocument(drawing.get(), context.get(), &whole, nullptr) != FALSE;
    return drawn ? image : QImage();
}

}  // namespace platform
