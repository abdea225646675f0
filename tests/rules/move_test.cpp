// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#include "rules/move.h"

#include <string>

#include "rules/deal.h"
#include "rules/group.h"
#include "rules/sound_choice.h"
#include "tests/rules/board_text.h"
#include "tests/rules/plain.h"

namespace rules {
namespace {

// Writes down what a move tells the window.
struct Recorder : Host {
    explicit Recorder(const Game& recorded) : game(recorded) {}

    const Game& game;
    std::string events;
    std::vector<CellIndex> removed;
    Landings landings;

    void cellCleared(CellIndex i) override {
        removed.push_back(i);
        events += std::to_string(i);
    }
    void yield() override { events += " yield "; }
    void scoreChanged() override { events += "[" + std::to_string(game.score) + "] "; }
    void lastMoveChanged(std::string_view text) override { events.append(text) += ' '; }
    void remainingChanged(std::string_view text) override { events.append(text); }
    void PlayWave(std::string_view file) override { events.append(file) += ' '; }
    void boardSettled(const Landings& places) override {
        landings = places;
        events += " settled ";
    }
    void gameEnded() override { events += "ended"; }
};

CellIndex anyCell(const Game& game, Random& random) {
    return static_cast<CellIndex>(random() * static_cast<float>(game.NBBoules));
}

std::int16_t ballsOn(const Board& board) {
    return static_cast<std::int16_t>(std::ssize(board.cells) - std::ranges::count(board.cells, Code::none));
}

TEST(Games, GoAsByThePlainRulesFromThousandsOfSeeds) {
    for (int seed = 0; seed < 4000; ++seed) {
        Random random(static_cast<std::uint64_t>(seed));
        Game game{.board = emptyBoard(1 + seed % 13, 1 + seed % 11)};
        deal(game, seed % 5, std::ref(random));
        for (int holes = seed % 3 * game.NBBoules / 4; holes > 0; --holes) {
            game.board[anyCell(game, random)] = Code::none;
        }
        game.Total = ballsOn(game.board);
        for (int presses = 0; presses < 2 * game.NBBoules; ++presses) {
            const CellIndex i = anyCell(game, random);
            const std::vector<int> sizes = groupSizes(game.board);
            ASSERT_EQ(groupSize(game.board, i), sizes[i]);
            ASSERT_EQ(hasGroup(game.board), std::ranges::max(sizes) > 1);
            const plain::Outcome plain = plain::press(game.board, i);
            Recorder host(game);
            playMove(game, i, host);
            ASSERT_EQ(plain::Outcome(sizes[i], host.removed, host.landings, game.board), plain)
                << "seed " << seed << ", cell " << i;
            ASSERT_EQ(game.Total, ballsOn(game.board));
        }
    }
}

TEST(Move, EventsComeInTheOrderThePlayerSeesThem) {
    const std::vector<std::pair<std::string, std::string>> table{
        {"rr", "Il reste 0 balles sur 2. settled [2008] ended"},
        {"rrb", "Il reste 1 balles sur 3. settled ended"},
        {"rrbv", "Il reste 2 balles sur 4. settled "},  // no move is left, but the game has not ended
    };
    for (const auto& [board, end] : table) {
        const auto balls = static_cast<std::int16_t>(board.size());
        Game game{.board = boardOf(board), .Total = balls, .NBBoules = balls, .score = 1000};
        Recorder host(game);
        playMove(game, 0, host);
        EXPECT_EQ(host.events, "0 yield 1 yield [1004] 2 balles crevées (4 points.) son2.WAV " + end) << board;
    }
}

TEST(Move, LargestGroupIsRemovedWithoutRecursion) {
    Game game{.board = {217, 151, std::vector(maxCells, Code::red)}, .Total = maxCells};
    Recorder host(game);
    playMove(game, -1, host);
    playMove(game, maxCells, host);
    EXPECT_EQ(game.score, 0) << "beside the board";
    playMove(game, 16'000, host);
    EXPECT_EQ(game.score, 2 * std::int64_t{715'806'037});
}

TEST(Move, SoundsChangeAtThreeElevenFiftyOneAndEightyOneBalls) {
    std::vector<std::string_view> sounds;
    for (const int balls : {2, 3, 10, 11, 50, 51, 80, 81}) {
        sounds.push_back(soundFor(balls));
    }
    EXPECT_EQ(sounds, (std::vector<std::string_view>{"son2.WAV", "son5.WAV", "son5.WAV", "son10.WAV", "son10.WAV",
                                                     "son50.WAV", "son50.WAV", "son80.WAV"}));
}

}  // namespace
}  // namespace rules
