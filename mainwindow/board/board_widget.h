// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include <array>

#include <QRegion>
#include <QWidget>

#include "platform/picture.h"
#include "rules/board.h"

namespace mainwindow {

/// The board on the screen, the control `c`: it paints the cells, finds the cell under the pointer, and moves a cursor
/// with the keys. Presses and moves of the mouse beside the cells go through to the window.
///
/// The keyboard treats the board as one tab stop. The cursor shows after the first key and hides at the next use of the
/// mouse.
class BoardWidget : public QWidget {
    Q_OBJECT

  public:
    /// Shows this board, which must outlive the widget. Call fitToBoard() before the widget is shown.
    BoardWidget(QWidget& window, const rules::Board& board);

    const rules::Board& board() const { return shownBoard; }

    /// Takes the size of the board and brings the cursor back onto it. Call it after every change of the board's size.
    void fitToBoard();

    /// Keeps in mind that cell i has changed, until paintChanges().
    void noteChange(rules::CellIndex i);
    /// Repaints the cells that have changed, from the event loop.
    void paintChanges();
    /// Repaints all cells, from the event loop. Call it after a deal and after a move.
    void showBoard();

    /// The cell with the cursor, even while the cursor is hidden.
    rules::CellIndex cursorCell() const { return shownBoard.indexOf(cursor); }
    /// Moves the cursor to cell i, and shows it while the board has the keyboard's focus.
    void moveCursor(rules::CellIndex i);

  signals:
    /// The player pressed a mouse button on cell i.
    void pressed(rules::CellIndex i, const QMouseEvent& press);
    /// The player pressed cell i with a key or a screen reader.
    void played(rules::CellIndex i);
    /// The cursor has moved, or the board has received the keyboard's focus.
    void cursorMoved();
    /// The board was dealt, or a move has ended.
    void boardShown();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    void paintCells(const QRegion& region);
    void setCursorShown(bool show);
    void updateCursor();

    const rules::Board& shownBoard;
    std::array<platform::Picture, rules::codes.size()> balls;  ///< in the order of the codes
    QRegion changed;                                           ///< in pixels
    rules::Position cursor{0, INT16_MAX};  ///< fitToBoard() brings it to the lowest cell at the left
    bool isCursorShown = false;
};

}  // namespace mainwindow
