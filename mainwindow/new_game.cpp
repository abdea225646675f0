// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

// Starting a new game sizes the board, deals the balls, and lays out the window around the board.

#include <algorithm>

#include "mainwindow/balls.h"
#include "mainwindow/board/board_widget.h"
#include "mainwindow/board/geometry.h"
#include "mainwindow/board_size.h"
#include "platform/label.h"
#include "platform/text_box.h"
#include "platform/yield.h"
#include "rules/deal.h"
#include "rules/status_lines.h"

namespace mainwindow {
namespace {

int requested(const platform::TextBox& box) {
    return leadingNumber(box.text().toStdU16String());
}

}  // namespace

void balls::startGame() {
    turns.begin();
    SizeBoard();
    NewGame();
    LayoutBoard();
    l1[0]->clear();
    turns.dropPresses();  // They were made on the board of the last game.
    announceStatus();
    turns.end();
}

void balls::SizeBoard() {
    ClearBoard();
    const platform::Box screen = surroundings.screen(*this);
    const BoardSize size = fittingSize({.NbCol = requested(*Text1[1]), .NbLig = requested(*Text1[0])},
                                       {screen.Width, screen.Height, platform::toTwips(Frame2->width())});
    Text1[1]->setText(QString::number(size.NbCol));
    Text1[0]->setText(QString::number(size.NbLig));
    rules::resizeBoard(game, size.NbCol, size.NbLig);
    c->fitToBoard();
    bestScores.load();
    showBestScores();
}

void balls::ClearBoard() {
    std::ranges::fill(game.board.cells, rules::Code::none);
}

void balls::NewGame() {
    hideEndPanel();
    rules::deal(game, selectedLevel(), rules::Random(surroundings.seed()));
    c->showBoard();
    bestScores.load(game.Diff);
    scoreChanged();
    remainingChanged(rules::remainingText(game.Total, game.NBBoules));
}

void balls::LayoutBoard() {
    using platform::toPixels;
    using platform::toTwips;

    frame.clear();
    Frame2->move(toPixels(game.board.NbCol * Pas + 600), toPixels(boardOrigin));
    setFixedSize(toPixels(toTwips(Frame2->x() + Frame2->width()) + 300), toPixels(game.board.NbLig * Pas + 1000));
    const int W = toTwips(width());
    const int Ht = toTwips(height());
    const platform::Box screen = surroundings.screen(*this);
    move(toPixels(screen.Left + (screen.Width - W) / 2), toPixels(screen.Top + (screen.Height - Ht) / 2 - 1000));
    platform::yield();
    frame.rebuild(toTwips(width()), toTwips(height()));
    // The border stays in front of the board, even if the window manager has made the window too small.
    c->setGeometry(c->geometry() & frame.inside());
    update();
}

}  // namespace mainwindow
