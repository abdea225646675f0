// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QColor>
#include <QFont>

namespace platform {

/// The steel blue of windows, panels and buttons.
inline constexpr QRgb steelBlue = qRgb(128, 160, 192);

/// Sizes of the windows' fonts, in pixels.
enum class FontSize { small = 11, medium = 16, large = 32 };

/// The windows' font. Liberation Sans is the one that the layout's widths hold; pixels keep a session's font
/// settings out.
QFont uiFont(FontSize size = FontSize::small, QFont::Weight weight = QFont::Normal);

/// Gives the program one look on every desktop: style, palette and fonts.
void applyLook();

}  // namespace platform
