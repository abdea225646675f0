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
    int index = -1;  ///< index in a control array; -1 for a control that is in no array
    Kind kind = Kind::label;
    Box place{};
    const char* text = "";
    const char* toolTip = "";
    const char* picture = "";  ///< file name
    FontSize size = FontSize::small;
    bool bold = false;
    Qt::Alignment align = Qt::AlignLeft;
    bool autoSize = false;  ///< the control takes the size of its text
    bool wraps = false;
    bool hidden = false;
    QRgb colour = qRgb(0, 0, 0);
};

/// Finds a picture by its file name.
using PictureSource = std::function<Picture(const QString& name)>;

/// Creates one control in the container for each row. The control's object name is controlName() of the row's name and
/// index. Where two controls overlap, the control of the earlier row is in front.
void buildControls(std::span<const ControlRow> rows, QWidget& container, const PictureSource& picture);

/// The object name of a control: "sc", or "Option1(3)" for an element of a control array.
QString controlName(const char* name, int index = -1);

/// Finds a control of the window by its name. The control must exist and be a `Widget`.
template <typename Widget>
Widget* control(const QWidget& window, const char* name, int index = -1) {
    auto* found = window.findChild<Widget*>(controlName(name, index));
    Q_ASSERT(found != nullptr);
    return found;
}

}  // namespace platform
