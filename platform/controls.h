// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>
#include <span>

#include <QWidget>

#include "platform/artwork.h"
#include "platform/look.h"
#include "platform/twips.h"

namespace platform {

enum class Kind { frame, label, picture, option, checkBox, textBox, shape };

/// One control of a window as it stands when the window is created.
struct ControlRow {
    const char* name = "";
    int index = -1;  ///< element of a control array; -1 for a control alone
    Kind kind = Kind::label;
    Box place{};
    const char* text = "";
    const char* toolTip = "";
    const char* picture = "";  ///< file name of its picture
    FontSize size = FontSize::small;
    bool bold = false;
    Qt::Alignment align = Qt::AlignLeft;
    bool autoSize = false;  ///< sized to its text
    bool wraps = false;
    bool hidden = false;
    QRgb colour = qRgb(0, 0, 0);
};

/// Finds a picture by its file name.
using PictureSource = std::function<Artwork(const QString& name)>;

/// Creates the controls of a window or frame inside it, each under its controlName(). The rows stand front to back:
/// each control covers those after it where they overlap.
void buildControls(std::span<const ControlRow> rows, QWidget& container, const PictureSource& picture);

/// The name under which a control is found in its window: "sc", or "Option1(3)" for an element of an array.
QString controlName(const char* name, int index = -1);

/// The control of a window that was built under this name and as this kind of widget.
template <typename Widget>
Widget* control(const QWidget& window, const char* name, int index = -1) {
    auto* found = window.findChild<Widget*>(controlName(name, index));
    Q_ASSERT(found != nullptr);
    return found;
}

}  // namespace platform
