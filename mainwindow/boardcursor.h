// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>
#include <optional>

#include <QWidget>

#include "rules/board.h"

namespace mainwindow {

/// The board as the keyboard knows it: one tab stop over all cells, in which arrow keys move a cursor and Space or
/// Enter presses. The cursor shows only after a key was used, and goes with the next use of the mouse, which passes
/// through.
class BoardCursor : public QWidget {
    Q_OBJECT

  public:
    /// `press` is told the cell that a key presses.
    BoardCursor(QWidget& window, const rules::Board& board, std::function<void(rules::CellIndex)> press);

    /// Lies over the board as large as it is now; to be called when its size has changed, for the cursor to stay on it.
    void fitBoard();

    const rules::Board& board() const { return shownBoard; }

    /// The cell that the cursor stands on.
    rules::CellIndex cell() const;
    /// Moves the cursor to a cell of the board and shows it, if the board has the keyboard's focus.
    void moveTo(rules::CellIndex cell);
    void press(rules::CellIndex cell) const { pressed(cell); }

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    std::optional<rules::Position> target(int key) const;
    QRect ring() const;
    void updateRing();
    void setShown(bool show);

    const rules::Board& shownBoard;
    std::function<void(rules::CellIndex)> pressed;
    rules::Position place{0, INT16_MAX};  ///< not beyond the board; at first its lowest cell at the left
    bool shown = false;
};

}  // namespace mainwindow
