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

/// Makes six ball pictures bounce in a window or panel. While the window or panel is not on the screen, the pictures
/// stop and use no processor time.
class BouncingPictures : public QObject {
    Q_OBJECT

  public:
    /// The field `where` must contain six pictures: widgets with the names ip, ir, iv, ig, ib and ij.
    explicit BouncingPictures(QWidget& where);

    /// Puts the pictures at random places in the field and starts them.
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
    std::optional<FramePace> pace;  ///< set between start() and stop()
    QTimer timer;                   ///< runs while the pictures bounce on the screen
};

}  // namespace animation
