// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>
#include <span>

#include <QWidget>

#include "platform/look.h"
#include "platform/picture.h"
#include "platform/twips.h"

namespace platform {

enum class Kind { frame, label, picture, option, checkBox, textBox, shape };

/// One control of a window, with its initial values.
struct ControlRow {
    const char* name = "";
    int index = -1;  ///< in its control array; -1 for a control outside of an array
    Kind kind = Kind::label;
    Box place{};
    const char* text = "";
    const char* toolTip = "";
    const char* picture = "";  ///< file name
    FontSize size = FontSize::small;
    bool bold = false;
    Qt::Alignment align = Qt::AlignLeft;
    bool autoSize = false;  ///< takes the size of its text
    bool wraps = false;
    bool hidden = false;
    QRgb colour = qRgb(0, 0, 0);
};

/// Finds a picture by its file name.
using PictureSource = std::function<Picture(const QString& name)>;

/// Creates the controls inside a window or frame and names each with controlName(). The rows are in the order front to
/// back: where controls overlap, the earlier one covers the later ones.
void buildControls(std::span<const ControlRow> rows, QWidget& container, const PictureSource& picture);

/// The object name of a control: "sc", or "Option1(3)" for an element of a control array.
QString controlName(const char* name, int index = -1);

/// The control of a window with this name, which must exist and be of this type.
template <typename Widget>
Widget* control(const QWidget& window, const char* name, int index = -1) {
    auto* found = window.findChild<Widget*>(controlName(name, index));
    Q_ASSERT(found != nullptr);
    return found;
}

}  // namespace platform
