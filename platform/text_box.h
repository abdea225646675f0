// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QWidget>

class QLineEdit;

namespace platform {

/// A one-line text box without a context menu. The toolkit's editor loads fonts as soon as it is created, so it
/// comes with the first painting: the window is on screen before.
class TextBox : public QWidget {
    Q_OBJECT

  public:
    explicit TextBox(QString text, QWidget* parent = nullptr);

    /// The text as it stands, typed or set.
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
