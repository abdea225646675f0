// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include <array>

#include <QRegion>
#include <QWidget>

#include "platform/picture.h"
#include "rules/board.h"

namespace mainwindow {

/// The board on the screen, the control `c`. It paints the cells, finds the cell under the pointer, and moves a cursor
/// with the keys. Mouse events in the margin around the cells go to the window.
///
/// The board is one tab stop. The cursor appears when the player enters the board with a key or presses a key on the
/// board. Any use of the mouse hides the cursor. A press of a mouse button on a cell gives the board the keyboard focus
/// and moves the hidden cursor to this cell.
class BoardWidget : public QWidget {
    Q_OBJECT

  public:
    /// The board must outlive the widget. Call fitToBoard() before the widget is shown.
    BoardWidget(QWidget& window, const rules::Board& board);

    const rules::Board& board() const { return shownBoard; }

    /// Resizes the widget to the board and brings the cursor back onto the board. Call it after each change of the
    /// board's size.
    void fitToBoard();

    /// Records that cell i has changed. Call paintChanges() to repaint the recorded cells.
    void markChanged(rules::CellIndex i);
    /// Tells Qt to repaint the recorded cells. Qt paints them when the program next handles events.
    void paintChanges();
    /// Tells Qt to repaint all cells, and emits boardChanged(). Call it after each deal and when the balls have fallen
    /// after a move.
    void showBoard();

    /// The cell with the cursor, even while the cursor is hidden.
    rules::CellIndex cursorCell() const { return shownBoard.indexOf(cursor); }
    /// Moves the cursor to cell i and shows the cursor. The cursor is painted only while the board has the keyboard
    /// focus.
    void moveCursor(rules::CellIndex i);

  signals:
    /// The player pressed a mouse button on cell i.
    void pressed(rules::CellIndex i, const QMouseEvent& press);
    /// The player pressed cell i with a key.
    void played(rules::CellIndex i);
    /// The player pressed cell i with a screen reader, which waits until the handler returns.
    void asked(rules::CellIndex i);
    /// The cursor has moved, or the board has received the keyboard focus.
    void cursorMoved();
    /// New balls were dealt, or the balls have fallen after a move.
    void boardChanged();

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
    std::array<platform::Picture, rules::codes.size()> ballPictures;  ///< in the order of rules::codes
    QRegion changed;                       ///< the area that paintChanges() repaints, in pixels
    rules::Position cursor{0, INT16_MAX};  ///< fitToBoard() moves it to the bottom left cell
    bool isCursorShown = false;
};

}  // namespace mainwindow
