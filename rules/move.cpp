// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#include "rules/move.h"

#include "rules/group.h"
#include "rules/points.h"
#include "rules/settle.h"
#include "rules/sound_choice.h"
#include "rules/status_lines.h"

namespace rules {

void efface(Board& board, CellIndex K, Code t, int& S, Host& host) {
    // A recursion over thousands of balls could overflow the call stack. This loop removes the balls in the same
    // order; it pushes the neighbours in reverse order for that. A cell may be pushed twice, so each popped cell is
    // tested.
    std::vector<CellIndex> pending{K};
    while (!pending.empty()) {
        const CellIndex cell = pending.back();
        pending.pop_back();
        if (board[cell] != t) {
            continue;
        }
        board[cell] = Code::none;
        ++S;
        host.cellCleared(cell);
        host.yield();

        std::array<CellIndex, 4> next{};
        std::size_t count = 0;
        forEachNeighbour(board, cell, [&](CellIndex neighbour) {
            if (board[neighbour] == t) {
                next[count++] = neighbour;
            }
        });
        while (count > 0) {
            pending.push_back(next[--count]);
        }
    }
}

void playMove(Game& game, int i, Host& host) {
    if (!isGroup(game.board, i)) {
        return;
    }
    const auto pressed = static_cast<CellIndex>(i);
    int S = 0;
    efface(game.board, pressed, game.board[pressed], S, host);

    game.score += pointsFor(S);
    host.scoreChanged();
    host.lastMoveChanged(lastMoveText(S));
    host.PlayWave(soundFor(S));

    game.Total = static_cast<std::int16_t>(game.Total - S);
    host.remainingChanged(remainingText(game.Total, game.NBBoules));

    host.boardSettled(settle(game.board));

    if (game.Total == 1) {
        host.gameEnded();
    } else if (game.Total == 0) {
        game.score *= 2;
        host.scoreChanged();
        host.gameEnded();
    }
}

}  // namespace rules
