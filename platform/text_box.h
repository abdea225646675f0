// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QWidget>

class QLineEdit;

namespace platform {

/// A one-line text box without a context menu. Its keys for editing come before the shortcuts of the window. A
/// QLineEdit loads fonts when it is created. So the text box creates its QLineEdit only at the first painting, when the
/// window is already on the screen. The QLineEdit then lies in front of the text box, as a child of the same parent, so
/// that screen readers find one box instead of a box in a box.
class TextBox : public QWidget {
    Q_OBJECT

  public:
    explicit TextBox(QString text, QWidget* parent = nullptr);

    /// The current text, as the player typed it or as the program set it.
    QString text() const;
    void setText(const QString& text);

  Q_SIGNALS:
    /// The player pressed Enter or Escape in the box.
    void finished();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    void createEditor();

    QString initial;  // the text until there is an editor
    QLineEdit* editor = nullptr;
};

}  // namespace platform
