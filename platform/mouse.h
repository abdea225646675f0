#pragma once

#include <functional>

class QWidget;

namespace platform {

/// Runs an action at each click on a control: the left button pressed and released over it.
void onClick(QWidget& control, std::function<void()> action);

}  // namespace platform
