#pragma once

#include <span>

#include "platform/look.h"
#include "platform/twips.h"

namespace mainwindow {

enum class Kind { frame, label, picture, option, checkBox, textBox, shape };
enum class Container { window, Frame1, Frame2 };

/// One control of the main window as it stands when the window is created.
struct ControlRow {
    const char* name = "";
    int index = -1;  ///< element of a control array; -1 for a control alone
    Kind kind = Kind::label;
    platform::Box place{};
    const char* text = "";
    const char* toolTip = "";
    const char* picture = "";  ///< file name of its picture
    platform::FontSize size = platform::FontSize::small;
    bool bold = false;
    Qt::Alignment align = Qt::AlignLeft;
    bool autoSize = false;  ///< sized to its text
    bool wraps = false;
    bool hidden = false;
    QRgb colour = qRgb(0, 0, 0);
};

/// The controls of a container that are widgets, front to back: each covers those after it where they
/// overlap.
std::span<const ControlRow> controlsOf(Container container);

}  // namespace mainwindow
