// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QWidget>

namespace platform {

/// The outline of a rectangle, one pixel wide, in the text colour. The mouse reaches the control under it.
class Outline : public QWidget {
    Q_OBJECT

  public:
    explicit Outline(QWidget* parent = nullptr);

  protected:
    void paintEvent(QPaintEvent* event) override;
};

}  // namespace platform
