#pragma once

#include "platform/twips.h"

class QWidget;

namespace platform {

/// The full screen on which a window stands, in twips; the primary one before the window is shown. Left and
/// Top are its origin on the desktop.
Box screenOf(const QWidget& window);

}  // namespace platform
