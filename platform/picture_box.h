// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QWidget>

#include "platform/artwork.h"

namespace platform {

/// A picture control.
class PictureBox : public QWidget {
    Q_OBJECT

  public:
    explicit PictureBox(Artwork picture, QWidget* parent = nullptr);

    const Artwork& picture() const { return shown; }
    void setPicture(const Artwork& picture);

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    Artwork shown;
};

}  // namespace platform
