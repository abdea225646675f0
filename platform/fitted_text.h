#pragma once

class QLabel;
class QString;

namespace platform {

/// Sets a one-line label's text, with its letters condensed just enough for the label's width.
void setFittedText(QLabel& label, const QString& text);

}  // namespace platform
