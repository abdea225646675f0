// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include <array>
#include <functional>

#include <QWidget>

#include "animation/bounce.h"
#include "platform/picture.h"
#include "platform/twips.h"

namespace platform {
class Label;
}

namespace about {

/// The window that explains the game, with two links and bouncing balls behind the text.
class About : public QWidget {
    Q_OBJECT

  public:
    /// Creates the window in the middle of a screen, given in twips, with its balls moving; the window is then ready to
    /// be shown. Whatever closes it, the window hides and then calls `whenClosed`.
    About(const platform::Box& screen, const animation::RandomSource& random, std::function<void()> whenClosed);

    /// A click on a link: 2 writes a mail to the author, 1 opens the author's web site, 0 goes back to the game.
    void Label1_Click(int Index);

  protected:
    void closeEvent(QCloseEvent* event) override;
    bool focusNextPrevChild(bool next) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    void describe();
    void AnimateAbout(const animation::RandomSource& random);
    void Form_MouseMove();
    void Label1_MouseMove(int Index);
    void Label2_MouseMove(int Index);
    int linkWithFocus() const;

    std::function<void()> closed;
    platform::Picture background;
    std::array<platform::Label*, 3> Label1{};
    std::array<platform::Label*, 6> Label2{};
};

}  // namespace about
