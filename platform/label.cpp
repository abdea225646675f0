// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#include "platform/label.h"

#include <algorithm>

#include <QFontMetrics>
#include <QPainter>
#include <QtMath>

#include "platform/pixel_painter.h"

namespace platform {
namespace {

// If the letters of a line would end below the label, the line is centred vertically. The label then cuts off only the
// blank rows above and below the letters.
Qt::Alignment alignmentFor(const QLabel& label, const QFontMetrics& metrics) {
    const bool whole = metrics.ascent() + metrics.tightBoundingRect(label.text()).bottom() < label.height();
    return whole ? label.alignment() : (label.alignment() & Qt::AlignHorizontal_Mask) | Qt::AlignVCenter;
}

constexpr int roomBelow = 3;  // letters may extend this many layout pixels below the label

// The height of the image without the blank rows at its bottom. Blank pixels are transparent.
int rowsWithInk(const QImage& image) {
    int rows = image.height();
    const auto isBlank = [&](int row) {
        // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): a row of pixels
        const auto* pixels = reinterpret_cast<const QRgb*>(image.constScanLine(row));
        return std::all_of(pixels, pixels + image.width(), [](QRgb pixel) { return pixel == 0; });
    };
    while (rows > 0 && isBlank(rows - 1)) {
        --rows;
    }
    return rows;
}

}  // namespace

QFont condensed(QFont font, const QString& text, int width) {
    constexpr int narrowest = 50;
    const auto widthAt = [&](int stretch) {
        font.setStretch(stretch);
        return QFontMetrics(font).horizontalAdvance(text);
    };
    // Hinted letters do not shrink evenly, so the proportion is only a first guess.
    const int proportion = QFont::Unstretched * width / std::max(widthAt(QFont::Unstretched), 1);
    int stretch = std::clamp<int>(proportion, narrowest, QFont::Unstretched);
    while (widthAt(stretch) > width && stretch > narrowest) {
        --stretch;
    }
    return font;
}

void Label::setSizedToText(bool sized) {
    sizedToText = sized;
}

void Label::paintEvent(QPaintEvent*) {
    if (sizedToText) {
        adjustSize();
    }
    PixelPainter painter(*this);
    const Look look{text(), font(), palette().color(foregroundRole()), painter.pixels(rect()).size(),
                    devicePixelRatioF()};
    if (look != drawnAs) {
        drawnAs = look;
        drawn = draw();
        if (const QRect painted = paintedArea(*this, geometry()); painted != geometry()) {
            parentWidget()->update(painted);
        }
    }
    painter.draw({}, drawn);
}

// At scales above 100 %, letters can extend below their font metrics, and so below the label. The text is then drawn
// higher by the excess, into the blank rows at the top.
QPixmap Label::draw() const {
    const QImage image = draw(0);
    const int excess = rowsWithInk(image) - drawnAs.size.height();
    return QPixmap::fromImage((excess > 0 ? draw(excess) : image).copy({QPoint(), drawnAs.size}));
}

QImage Label::draw(int raisedBy) const {
    QImage image(drawnAs.size + QSize(0, qCeil(roomBelow * drawnAs.ratio)), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.translate(0, -raisedBy);
    painter.scale(drawnAs.ratio, drawnAs.ratio);
    painter.setPen(drawnAs.colour);
    painter.setFont(drawnAs.font);
    if (wordWrap()) {
        drawParagraph(painter);
    } else {
        drawLine(painter);
    }
    return image;
}

void Label::drawParagraph(QPainter& painter) const {
    // A line may begin with a letter that extends to the left of its origin, such as j. Both sides get the same margin,
    // so that centred text stays centred.
    const int overhang = std::max(0, -painter.fontMetrics().leftBearing(u'j'));
    painter.drawText(rect().adjusted(overhang, 0, -overhang, 0), static_cast<int>(alignment()) | Qt::TextWordWrap,
                     text());
}

void Label::drawLine(QPainter& painter) const {
    painter.setFont(condensed(font(), text(), width()));
    painter.drawText(rect(), static_cast<int>(alignmentFor(*this, painter.fontMetrics())) | Qt::TextDontClip, text());
}

}  // namespace platform
