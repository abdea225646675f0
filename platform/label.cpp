// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#include "platform/label.h"

#include <algorithm>

#include <QFontMetrics>
#include <QPainter>

#include "platform/pixel_painter.h"

namespace platform {
namespace {

// Where the text goes: letters that would end below the label are centred, and lose nothing but blank rows.
Qt::Alignment alignmentFor(const QLabel& label, const QFontMetrics& metrics) {
    const bool whole = metrics.ascent() + metrics.tightBoundingRect(label.text()).bottom() < label.height();
    return whole ? label.alignment() : (label.alignment() & Qt::AlignHorizontal_Mask) | Qt::AlignVCenter;
}

}  // namespace

QFont condensed(QFont font, const QString& text, int width) {
    constexpr int narrowest = 50;
    const auto widthAt = [&](int stretch) {
        font.setStretch(stretch);
        return QFontMetrics(font).horizontalAdvance(text);
    };
    // Hinted letters do not shrink evenly, so the proportion is only near the answer.
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
    }
    painter.draw({}, drawn);
}

QPixmap Label::draw() const {
    QPixmap picture(drawnAs.size);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.scale(drawnAs.ratio, drawnAs.ratio);
    painter.setPen(drawnAs.colour);
    painter.setFont(drawnAs.font);
    wordWrap() ? drawParagraph(painter) : drawLine(painter);
    return picture;
}

void Label::drawParagraph(QPainter& painter) const {
    // Room for a line that begins with the one letter that reaches out of its place.
    const int overhang = std::max(0, -painter.fontMetrics().leftBearing(u'j'));
    painter.drawText(rect().adjusted(overhang, 0, -overhang, 0), static_cast<int>(alignment()) | Qt::TextWordWrap,
                     text());
}

void Label::drawLine(QPainter& painter) const {
    painter.setFont(condensed(font(), text(), width()));
    painter.drawText(rect(), static_cast<int>(alignmentFor(*this, painter.fontMetrics())), text());
}

}  // namespace platform
