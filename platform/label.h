// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QLabel>

namespace platform {

/// The font, condensed just enough for a line of text to be no wider than so many pixels. Letters stay at least
/// half as wide as they are.
QFont condensed(QFont font, const QString& text, int width);

/// A text that is never clipped: a line too wide for the label is condensed, and one too high for it is centred.
/// All this is seen to when the label is painted, so that no font is loaded before the window is on screen.
class Label : public QLabel {
    Q_OBJECT

  public:
    using QLabel::QLabel;

    /// Lets the label take the size of its text.
    void setSizedToText(bool sized);

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    /// All that the look of a text depends on.
    struct Look {
        QString text;
        QFont font;
        QColor colour;
        QSize size;    ///< pixels of the screen
        double ratio;  ///< device pixels to a pixel
        bool operator==(const Look&) const = default;
    };

    QPixmap draw() const;
    QImage draw(int raisedBy) const;
    void drawParagraph(QPainter& painter) const;
    void drawLine(QPainter& painter) const;

    bool sizedToText = false;
    // The text as it was drawn last: laying it out anew would be most of the work while balls move behind it.
    QPixmap drawn;
    Look drawnAs{};
};

}  // namespace platform
