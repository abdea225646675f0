// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QColor>
#include <QFont>

namespace platform {

/// The background colour of windows, panels and buttons.
inline constexpr QRgb steelBlue = qRgb(128, 160, 192);

/// Sizes of the windows' fonts, in pixels.
enum class FontSize { small = 11, medium = 16, large = 32 };

/// The font of the windows: Liberation Sans, or a similar font if it is not installed. The layout is made for the
/// widths of Liberation Sans. The size is in pixels, so the font settings of the desktop do not change it.
QFont uiFont(FontSize size = FontSize::small, QFont::Weight weight = QFont::Normal);

/// Sets the style, the palette, the fonts and the focus ring of the program. They are the same on every desktop.
void applyLook();

}  // namespace platform
