// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QWidget>

namespace platform {

/// The outline of a rectangle, one layout pixel thick, in the text colour. Mouse events go to the control behind it.
class Outline : public QWidget {
    Q_OBJECT

  public:
    explicit Outline(QWidget* parent = nullptr);

  protected:
    void paintEvent(QPaintEvent* event) override;
};

}  // namespace platform
