// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#include "tests/settings/faults.h"

#include <cerrno>
#include <climits>
#include <filesystem>
#include <set>
#include <string>
#include <tuple>
#include <vector>

#include <gmock/gmock.h>

#include "settings/best_scores.h"
#include "settings/ini_file.h"
#include "tests/settings/folder.h"

namespace {

using namespace faults;
using testing::AnyOf;
using testing::Contains;

/// What a program finds when it starts.
struct Start {
    QByteArray file;
    QByteArray backup;
    int immovable = 0;  // as in Plan
    QByteArray rejected = "(missing)";
};

std::vector<Start> starts() {
    const QByteArray whole = "[init]\nx=y\nCol=30\n0=120\n1=50\n";
    return {{whole, ""}, {"junk", whole, 0, "junk"}, {"", whole}, {whole, "", EXDEV}};
}

QByteArray stored(const Folder& folder) {
    const bool isInBackup = plan().immovable != 0 && !settings::isIniFile(folder.bytes());
    return folder.bytes(isInBackup ? u".bak"_s : QString());
}

struct Game {
    /// Changes the settings while operations fail as planned. Returns what was stored before and after each change.
    const std::vector<QByteArray>& play(const Plan& planned) {
        folder.put(start.file);
        folder.put(start.backup, u".bak"_s);
        QFile::setPermissions(folder.ini, QFile::Permissions::fromInt(0x604));
        plan() = planned;
        plan().immovable = start.immovable;
        settings::BestScores scores(store, 5);
        const auto after = [&](auto change) {
            plan().folder = folder.path();
            change();
            plan().folder.clear();
            files.push_back(stored(folder));
        };
        after([&] { scores.load(); });
        after([&] { scores.raise(0, u"130"_s); });
        after([&] { store.write(init, col, u"40"_s); });
        after([&] { scores.raise(3, u"7"_s); });
        after([&] { scores.reset(1); });
        after([&] { store.flush(); });
        return files;
    }

    Start start;
    Folder folder;
    settings::Store store{folder.ini};
    std::vector<QByteArray> files{start.file};
};

struct Faults : testing::Test {
    void TearDown() override { plan() = {}; }
};

/// Strikes each operation of the game in turn: this one alone, or all later ones, too.
void strikeEach(const Start& start, int fault, bool isLasting) {
    const std::vector<QByteArray> whole = Game{start}.play({});
    int first = 0;
    do {
        ++first;
        Game game{start};
        game.play({.first = first, .last = isLasting ? INT_MAX : first, .fault = fault});
        SCOPED_TRACE(testing::Message() << "operation " << first << ", " << plan().struck);
        for (const QByteArray& now : game.files) {
            EXPECT_THAT(whole, Contains(now));
        }
        EXPECT_TRUE(plan().seen > first || plan().struck != "fsync") << "not tried again";
        EXPECT_TRUE(QFile::permissions(game.folder.ini) & 0x4) << "the mode is lost";
        EXPECT_EQ(game.store.read(init, u"0"_s, none), u"130"_s);
        game.store.flush();
        EXPECT_EQ(game.folder.bytes(), whole.back());
        EXPECT_EQ(game.folder.bytes(u".bad"_s), start.rejected);
    } while (!plan().struck.empty());
    EXPECT_GT(first, 60) << "the functions of the system are not replaced";
}

TEST_F(Faults, OfAnyFileOperationLeaveTheOldFileOrTheNewOneAndCostNothing) {
    for (const Start& start : starts()) {
        for (const int fault : {ENOSPC, EIO, cutShort, EINTR}) {
            SCOPED_TRACE(testing::Message() << start.file.toStdString() << start.immovable << ", " << fault);
            strikeEach(start, fault, false);
            if (fault != EINTR) {  // no system interrupts for ever
                strikeEach(start, fault, true);
            }
        }
    }
}

TEST_F(Faults, OfTheDiskAloneHoldASaveBackUntilTheyAreGone) {
    const Start start{"[init]\n0=120", ""};
    const std::vector<QByteArray> saved = Game{start}.play({});
    const std::vector<QByteArray> heldBack(saved.size(), start.file);
    const std::set<int> ofTheDisk{EIO, ENOSPC, EDQUOT, EROFS};
    const std::vector<std::tuple<std::set<std::string>, std::set<int>, std::vector<QByteArray>, bool>> rows{
        {{"fchmod", "fdatasync"}, ofTheDisk, heldBack, true},
        {{"fsync"}, ofTheDisk, saved, true},  // of the folder, in which the new bytes have their place already
        {{"fchmod", "fdatasync", "fsync"}, {EPERM, EACCES, EINVAL, ENOSYS, EOPNOTSUPP}, saved, false},
        {{"flock"}, {ENOLCK, ENOSYS, EOPNOTSUPP}, saved, false},
    };
    for (const auto& [operations, faults, files, isSavedAgain] : rows) {
        for (const std::string& operation : operations) {
            for (const int fault : faults) {
                SCOPED_TRACE(testing::Message() << operation << " reports " << fault);
                Game game{start};
                EXPECT_EQ(game.play({.only = operation, .last = INT_MAX, .fault = fault}), files);
                plan() = {.folder = game.folder.path(), .only = "fsync"};
                game.store.flush();
                EXPECT_EQ(plan().seen > 0, isSavedAgain) << "what a power cut may undo";
            }
        }
    }
    Game{{start.file, "", EBUSY}}.play({.only = "fsync"});
    EXPECT_EQ(plan().seen, 4 * 4) << "syncs of four saves in place";
}

TEST_F(Faults, AKillAtAnyFileOperationLeavesTheOldFileOrTheNewOneAndTheNextSaveTidiesUp) {
    for (const Start& start : starts()) {
        const std::vector<QByteArray> whole = Game{start}.play({});
        Game game{start};
        const auto kill = [&] {
            SCOPED_TRACE(testing::Message() << start.file.toStdString() << ", operation " << plan().seen);
            const Folder left;
            std::filesystem::copy(game.folder.path(), left.path());
            const QByteArray now = stored(left);
            EXPECT_THAT(now, AnyOf(game.files.back(), whole[game.files.size()]));
            settings::Store(left.ini).raise(init, u"4"_s, u"1"_s);
            const QByteArray& read = settings::isIniFile(now) ? now : start.backup;
            EXPECT_EQ(left.bytes(), settings::withValue(read, init, u"4"_s, u"1"_s));
            EXPECT_EQ(left.bytes(u".bad"_s), start.rejected);
            EXPECT_FALSE(left.names().contains(u".part"_s)) << left.names().toStdString();
        };
        game.play({.last = INT_MAX, .meanwhile = kill});
    }
}

}  // namespace
