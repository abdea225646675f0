// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>

#include <QObject>
#include <QTimer>
#include <QWidget>

#include "animation/bounce.h"
#include "animation/frame_pace.h"

namespace animation {

/// Makes the six ball pictures of a window or panel bounce inside it. While they are not on the screen, they stop and
/// use no processor time.
class BouncingPictures : public QObject {
    Q_OBJECT

  public:
    /// The field `where` contains the pictures, with the names ip, ir, iv, ig, ib and ij.
    explicit BouncingPictures(QWidget& where);

    /// Scatters the pictures over the field in its current size and starts them.
    void start(const RandomSource& random);
    /// Stops the pictures where they are.
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
    std::optional<FramePace> pace;  ///< while they bounce
    QTimer timer;                   ///< runs while they bounce on screen
};

}  // namespace animation
