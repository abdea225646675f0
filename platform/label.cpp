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

// A line whose letters would end below the label is centred: only blank rows are then cut off.
Qt::Alignment alignmentFor(const QLabel& label, const QFontMetrics& metrics) {
    const bool whole = metrics.ascent() + metrics.tightBoundingRect(label.text()).bottom() < label.height();
    return whole ? label.alignment() : (label.alignment() & Qt::AlignHorizontal_Mask) | Qt::AlignVCenter;
}

constexpr int roomBelow = 3;  // pixels below a label in which letters may end

// The number of rows from the top to the last row that is not blank, in an image on a transparent ground.
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
        if (const QRect reached = withReach(*this, geometry()); reached != geometry()) {
            parentWidget()->update(reached);
        }
    }
    painter.draw({}, drawn);
}

// At finer scales letters can extend below their metrics; the text is then drawn that much higher, into the blank rows
// at the top.
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
    // Leaves space for a line that begins with j, the only letter that extends to the left of its origin.
    const int overhang = std::max(0, -painter.fontMetrics().leftBearing(u'j'));
    painter.drawText(rect().adjusted(overhang, 0, -overhang, 0), static_cast<int>(alignment()) | Qt::TextWordWrap,
                     text());
}

void Label::drawLine(QPainter& painter) const {
    painter.setFont(condensed(font(), text(), width()));
    painter.drawText(rect(), static_cast<int>(alignmentFor(*this, painter.fontMetrics())) | Qt::TextDontClip, text());
}

}  // namespace platform
