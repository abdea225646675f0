// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#include "tests/faults/faults.h"

#include <array>
#include <cerrno>
#include <functional>
#include <set>
#include <string>
#include <tuple>
#include <vector>

#include <gtest/gtest.h>

#include "settings/best_scores.h"
#include "settings/ini_file.h"
#include "tests/settings/folder.h"

namespace {

using namespace faults;

// From then on, or once; but no system interrupts for ever.
constexpr std::array<std::pair<int, bool>, 7> kinds{
    {{ENOSPC, true}, {ENOSPC, false}, {EIO, true}, {EIO, false}, {cutShort, true}, {cutShort, false}, {EINTR, false}}};

struct Game {
    /// Plays over a file that a person has written, and its backup, while operations fail as planned. Returns what is
    /// stored before and after each change.
    std::vector<QByteArray> play(const QByteArray& file, const QByteArray& backup, const Plan& planned) {
        folder.put(file);
        folder.put(backup, u".bak"_s);
        QFile::setPermissions(folder.ini, QFile::Permissions::fromInt(0x604));
        plan() = planned;
        settings::BestScores scores(store, 5);
        const std::vector<std::function<void()>> changes{
            [&] { scores.load(); },
            [&] { scores.raise(0, u"130"_s); },
            [&] { store.write(init, col, u"40"_s); },
            [&] { scores.raise(3, u"7"_s); },
            [&] { scores.reset(1); },
            [&] { store.flush(); },
        };
        std::vector<QByteArray> files{file};
        for (const auto& change : changes) {
            plan().folder = folder.folder.path().toStdString();
            change();
            plan().folder.clear();
            const bool isBackup = planned.immovable != 0 && !settings::isIniFile(folder.bytes());
            files.push_back(folder.bytes(isBackup ? u".bak"_s : QString()));
        }
        return files;
    }

    Folder folder;
    settings::Store store{folder.ini};
};

/// Strikes each operation of the game in turn. Returns their names.
std::set<std::string> strikeEach(const QByteArray& file, const QByteArray& backup, Plan planned) {
    const std::vector<QByteArray> files = Game().play(file, backup, {});
    std::set<std::string> struck;
    for (planned.first = 1;; ++planned.first) {
        Game game;
        const std::vector<QByteArray> found = game.play(file, backup, planned);
        SCOPED_TRACE(testing::Message() << "operation " << planned.first << ", " << plan().struck);
        for (const QByteArray& now : found) {
            EXPECT_TRUE(std::ranges::find(files, now) != files.end()) << testing::PrintToString(now);
        }
        EXPECT_TRUE(plan().seen > planned.first || plan().struck != "fsync") << "not tried again";
        EXPECT_TRUE(QFile::permissions(game.folder.ini) & 0x4) << "the mode is lost";
        EXPECT_EQ(game.store.read(init, u"0"_s, none), u"130"_s);
        game.store.flush();
        EXPECT_EQ(game.folder.bytes(), files.back());
        EXPECT_EQ(game.folder.bytes(u".bad"_s), file.startsWith('[') ? "(missing)" : file);
        if (plan().struck.empty()) {
            return struck;
        }
        struck.insert(plan().struck);
    }
}

TEST(Faults, OfAnyFileOperationLeaveTheOldFileOrTheNewOneAndCostNothing) {
    const QByteArray whole = "[init]\nx=y\nCol=30\n0=120\n1=50\n";
    const std::set<std::string> operations{"fchmod", "fdatasync", "flock",  "fsync", "linkat",
                                           "open",   "read",      "rename", "stat",  "write"};
    const std::vector<std::tuple<QByteArray, QByteArray, int>> files{
        {whole, "", 0}, {"junk", whole, 0}, {whole, "", EXDEV}};
    for (const auto& [file, backup, immovable] : files) {
        for (const auto& [fault, lasting] : kinds) {
            SCOPED_TRACE(testing::Message()
                         << fault << (lasting ? " for ever, " : " once, ") << file.toStdString() << immovable);
            EXPECT_EQ(strikeEach(file, backup, {.lasting = lasting, .fault = fault, .immovable = immovable}),
                      operations);
        }
    }
}

TEST(Faults, OfTheDiskAloneHoldASaveBackUntilTheyAreGone) {
    const QByteArray old = "[init]\n0=120";
    const std::vector<QByteArray> files = Game().play(old, "", {});
    const std::vector<std::tuple<std::set<std::string>, std::set<int>, bool>> rows{
        {{"read"}, {cutShort}, true},
        {{"fchmod", "fdatasync", "fsync"}, {EIO, ENOSPC, EDQUOT, EROFS}, true},
        {{"fchmod", "fdatasync", "fsync"}, {EPERM, EACCES, EINVAL, ENOSYS, EOPNOTSUPP}, false},
        {{"flock"}, {ENOLCK, ENOSYS, EOPNOTSUPP}, false},
    };
    for (const auto& [operations, faults, isOfTheDisk] : rows) {
        for (const std::string& operation : operations) {
            for (const int fault : faults) {
                SCOPED_TRACE(testing::Message() << operation << " reports " << fault);
                Game game;
                const auto found = game.play(old, "", {.first = 1, .lasting = true, .fault = fault, .only = operation});
                // The folder is synced when the new bytes have their place.
                EXPECT_EQ(found, isOfTheDisk && operation != "fsync" ? std::vector(files.size(), old) : files);
                plan() = {.folder = game.folder.folder.path().toStdString(), .only = "fsync"};
                game.store.flush();
                EXPECT_EQ(plan().seen > 0, isOfTheDisk) << "what a power cut may undo is saved again";
            }
        }
    }
    Game().play(old, "", {.immovable = EBUSY, .only = "fsync"});
    EXPECT_EQ(plan().seen, 4 * 4) << "syncs of four saves in place";
}

}  // namespace
