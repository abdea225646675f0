// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>

#include <QObject>
#include <QTimer>
#include <QWidget>

#include "animation/bounce.h"
#include "animation/pace.h"

namespace animation {

/// The six ball pictures of a window or panel, bouncing inside it. They rest, and cost nothing, while they are not on
/// screen.
class BouncingPictures : public QObject {
    Q_OBJECT

  public:
    /// `where` is the field, which holds the pictures under the names ip, ir, iv, ig, ib and ij.
    explicit BouncingPictures(QWidget& where);

    /// Scatters the pictures over the field, as large as it is now, and keeps them bouncing.
    void start(const Draw& draw);
    /// Leaves them where they are.
    void stop();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void run();
    void showFrame();
    void advance(int passes);
    void waitForNextFrame();

    QWidget& field;
    std::array<QWidget*, std::tuple_size_v<Balls>> pictures{};
    Balls balls{};
    std::optional<Pace> pace;  ///< while they bounce
    QTimer timer;              ///< runs while they bounce on screen
};

}  // namespace animation
