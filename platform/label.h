// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QLabel>

namespace platform {

/// Returns the font, condensed if the text is too wide for one line of `width` pixels. Letters keep at least half their
/// normal width, so a very long text may still be too wide.
QFont condensed(QFont font, const QString& text, int width);

/// A label that does not clip its text. A line that is too wide is condensed. A line that is too high is centred
/// vertically. The label measures its text only when it is painted, so that no font is loaded before the window is on
/// the screen.
class Label : public QLabel {
    Q_OBJECT

  public:
    using QLabel::QLabel;

    /// Sets whether the label takes the size of its text at each painting.
    void setSizedToText(bool sized);

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    /// Everything that determines the pixels of the text.
    struct Look {
        QString text;
        QFont font;
        QColor colour;
        QSize size;    ///< screen pixels
        double ratio;  ///< screen pixels per layout pixel
        bool operator==(const Look&) const = default;
    };

    QPixmap draw() const;
    QImage draw(int raisedBy) const;
    void drawParagraph(QPainter& painter) const;
    void drawLine(QPainter& painter) const;

    bool sizedToText = false;
    // The text as it was last drawn. While balls move behind the label, drawing its text again for each frame would be
    // most of the work.
    QPixmap drawn;
    Look drawnAs{};
};

}  // namespace platform
