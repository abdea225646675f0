// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QWidget>

#include "platform/picture.h"

namespace platform {

/// A control that shows a picture at its natural size.
class PictureBox : public QWidget {
    Q_OBJECT

  public:
    explicit PictureBox(Picture picture, QWidget* parent = nullptr);

    const Picture& picture() const { return shown; }
    void setPicture(const Picture& picture);

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    Picture shown;
};

}  // namespace platform
