// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QWidget>

class QLineEdit;

namespace platform {

/// A one-line text box without a context menu. Qt's editor loads fonts when it is created, so it is created at the
/// first painting, when the window is already on the screen.
class TextBox : public QWidget {
    Q_OBJECT

  public:
    explicit TextBox(QString text, QWidget* parent = nullptr);

    /// The current text, typed or set.
    QString text() const;
    void setText(const QString& text);

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    void createEditor();

    QString initial;  // until there is an editor
    QLineEdit* editor = nullptr;
};

}  // namespace platform
