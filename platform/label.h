// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QLabel>

namespace platform {

/// The font, condensed just enough for a line of text to fit a width in pixels, but to no less than half its width.
QFont condensed(QFont font, const QString& text, int width);

/// A text that is never clipped: a line that is too wide is condensed, a line that is too high is centred. Everything
/// happens when the label is painted, so that no font is loaded before the window is on the screen.
class Label : public QLabel {
    Q_OBJECT

  public:
    using QLabel::QLabel;

    /// Whether the label takes the size of its text.
    void setSizedToText(bool sized);

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    /// Everything on which the pixels of the text depend.
    struct Look {
        QString text;
        QFont font;
        QColor colour;
        QSize size;    ///< screen pixels
        double ratio;  ///< screen pixels to a layout pixel
        bool operator==(const Look&) const = default;
    };

    QPixmap draw() const;
    QImage draw(int raisedBy) const;
    void drawParagraph(QPainter& painter) const;
    void drawLine(QPainter& painter) const;

    bool sizedToText = false;
    // The text as it was last drawn. While balls move behind it, drawing it again would be most of the work.
    QPixmap drawn;
    Look drawnAs{};
};

}  // namespace platform
