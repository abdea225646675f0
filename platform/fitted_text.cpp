#include "platform/fitted_text.h"

#include <algorithm>

#include <QFontMetrics>
#include <QLabel>

namespace platform {

void setFittedText(QLabel& label, const QString& text) {
    constexpr int narrowest = 50;
    QFont font = label.font();
    const auto widthAt = [&](int stretch) {
        font.setStretch(stretch);
        return QFontMetrics(font).horizontalAdvance(text);
    };
    // Hinted letters do not shrink evenly, so the proportion is only near the answer.
    const int proportion = QFont::Unstretched * label.width() / std::max(widthAt(QFont::Unstretched), 1);
    int stretch = std::clamp<int>(proportion, narrowest, QFont::Unstretched);
    while (widthAt(stretch) > label.width() && stretch > narrowest) {
        --stretch;
    }
    label.setFont(font);
    label.setText(text);
}

}  // namespace platform
