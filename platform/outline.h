// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QWidget>

namespace platform {

/// The outline of a rectangle, a pixel wide, in the text colour. It lets the mouse through to what lies under it.
class Outline : public QWidget {
    Q_OBJECT

  public:
    explicit Outline(QWidget* parent = nullptr);

  protected:
    void paintEvent(QPaintEvent* event) override;
};

}  // namespace platform
