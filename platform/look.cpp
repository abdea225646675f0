// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#include "platform/look.h"

#include <QApplication>
#include <QProxyStyle>
#include <QStyleHints>
#include <QToolTip>

#include "platform/focus_ring.h"

using namespace Qt::StringLiterals;

namespace platform {
namespace {

// The Fusion style with a focus ring of its own. The sizes of indicators and of the gaps beside them fit the widths of
// the options.
class Style : public QProxyStyle {
  public:
    Style() : QProxyStyle(u"fusion"_s) {}

    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override {
        switch (metric) {
            case PM_RadioButtonLabelSpacing:
            case PM_CheckBoxLabelSpacing:
                return 4;
            case PM_IndicatorWidth:
            case PM_IndicatorHeight:
            case PM_ExclusiveIndicatorWidth:
            case PM_ExclusiveIndicatorHeight:
                return 13;
            case PM_FocusFrameHMargin:
                return focusRingMargin.width();
            case PM_FocusFrameVMargin:
                return focusRingMargin.height();
            default:
                return QProxyStyle::pixelMetric(metric, option, widget);
        }
    }

    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* result) const override {
        switch (hint) {
            case SH_FocusFrame_AboveWidget:
                return 1;  // The parent of a control would cut off the ring at its own edge.
            case SH_FocusFrame_Mask:
                return 0;  // The ring around a label overlaps the label.
            default:
                return QProxyStyle::styleHint(hint, option, widget, result);
        }
    }

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override {
        // The focus ring replaces the focus rectangle of Fusion, which is too pale on the steel blue background.
        if (element != PE_FrameFocusRect) {
            QProxyStyle::drawPrimitive(element, option, painter, widget);
        }
    }
};

QPalette steelPalette() {
    const QColor field(steelBlue);
    QPalette palette(field, field);
    palette.setColor(QPalette::WindowText, Qt::black);
    palette.setColor(QPalette::Text, Qt::black);
    palette.setColor(QPalette::ButtonText, Qt::black);
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::AlternateBase, Qt::white);
    palette.setColor(QPalette::PlaceholderText, Qt::darkGray);
    palette.setColor(QPalette::Highlight, QColor(0x2A, 0x4D, 0x78));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Link, QColor(0x1A, 0x3D, 0x68));
    palette.setColor(QPalette::LinkVisited, QColor(0x1A, 0x3D, 0x68));
    palette.setColor(QPalette::ToolTipBase, QColor(0xFF, 0xFF, 0xE1));
    palette.setColor(QPalette::ToolTipText, Qt::black);
    return palette;
}

}  // namespace

QFont uiFont(FontSize size, QFont::Weight weight) {
    QFont font;
    font.setFamilies({u"Liberation Sans"_s, u"Arial"_s, u"Helvetica"_s});
    font.setPixelSize(static_cast<int>(size));
    font.setWeight(weight);
    return font;
}

void applyLook() {
#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
    // On a dark desktop, the style would draw light outlines. They would not show on this light palette.
    QGuiApplication::styleHints()->setColorScheme(Qt::ColorScheme::Light);
#endif
    QApplication::setStyle(new Style);
    QApplication::setPalette(steelPalette());
    QApplication::setFont(uiFont());
    QToolTip::setPalette(steelPalette());
    QToolTip::setFont(uiFont());
    showFocusRing();
}

}  // namespace platform
