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

/// The window that explains the game. It has paragraphs of text, three links, and balls that bounce behind the text.
class About : public QWidget {
    Q_OBJECT

  public:
    /// Creates the window, still hidden, in the middle of `screen` (in twips). `random` scatters the balls, which
    /// bounce while the window is shown. When the window closes, it hides itself and then calls `whenClosed`.
    About(const platform::Box& screen, const animation::RandomSource& random, std::function<void()> whenClosed);

    /// Handles a click on the link number `Index`: 0 closes the window, 1 opens the author's web site, 2 opens a new
    /// mail to the author. Any other index does nothing.
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
