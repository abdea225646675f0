#pragma once

#include <QString>

class QWidget;

namespace mainwindow {

/// The name under which a control is found in its window: "sc", or "Option1(3)" for an element of an array.
QString controlName(const char* name, int index = -1);

/// Creates the controls of the main window inside it, as the layout says, each under its controlName().
void buildControls(QWidget& window);

}  // namespace mainwindow
