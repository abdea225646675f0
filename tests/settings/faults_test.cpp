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

#include "settings/bestscores.h"
#include "tests/settings/folder.h"

namespace {

using namespace faults;

constexpr std::array<std::tuple<const char*, int, bool>, 7> kinds{{
    {"full disk, once", ENOSPC, false},
    {"full disk from then on", ENOSPC, true},
    {"input/output error, once", EIO, false},
    {"input/output error from then on", EIO, true},
    {"interruption", EINTR, false},
    {"cut short, once", cutShort, false},
    {"cut short from then on", cutShort, true},
}};

/// One start of a game and its moves, over a file that a person has written; `step` is called with each change.
void playOn(settings::Store& store, const std::function<void(const std::function<void()>&)>& step) {
    settings::BestScores scores(store);
    step([&] {
        store.read(init, col, none);
        scores.load();
    });
    step([&] { scores.sc_Change(0, u"130"_s); });
    step([&] { store.write(init, col, u"40"_s); });
    step([&] { scores.sc_Change(3, u"7"_s); });
    step([&] { scores.reset(1); });
    step([&] { store.flush(); });
}

/// The file after each of the steps if all goes well.
std::vector<QByteArray> filesOf(const QByteArray& file, const QByteArray& backup) {
    const Folder folder;
    folder.put(file);
    folder.put(backup, u".bak"_s);
    settings::Store store(folder.ini);
    std::vector<QByteArray> files{file};
    playOn(store, [&](const auto& change) {
        change();
        files.push_back(folder.bytes());
    });
    return files;
}

/// Strikes each operation of the game in turn. Returns their names.
std::set<std::string> strikeEach(const QByteArray& file, const QByteArray& backup, int fault, bool lasting) {
    const std::vector<QByteArray> files = filesOf(file, backup);
    std::set<std::string> struck;
    for (int first = 1;; ++first) {
        const Folder folder;
        folder.put(file);
        folder.put(backup, u".bak"_s);
        settings::Store store(folder.ini);
        plan() = {.first = first, .lasting = lasting, .fault = fault};
        playOn(store, [&](const auto& change) {
            plan().folder = folder.folder.path().toStdString();
            change();
            plan().folder.clear();
            const QByteArray now = folder.bytes();
            EXPECT_TRUE(std::ranges::find(files, now) != files.end())
                << testing::PrintToString(now) << " after operation " << first << ", " << plan().struck;
        });
        EXPECT_EQ(store.read(init, u"0"_s, none), u"130"_s) << "operation " << first << ", " << plan().struck;
        store.flush();
        EXPECT_EQ(folder.bytes(), files.back()) << "operation " << first << ", " << plan().struck;
        EXPECT_EQ(folder.bytes(u".bad"_s), file.startsWith('[') ? "(missing)" : file);
        if (plan().struck.empty()) {
            return struck;
        }
        struck.insert(plan().struck);
    }
}

TEST(Faults, OfAnyFileOperationLeaveTheOldFileOrTheNewOneAndCostNothing) {
    const QByteArray whole = "[init]\nx=y\nCol=30\n0=120\n1=50\n";
    const std::set<std::string> operations{"fdatasync", "flock", "linkat", "open", "read", "rename", "stat", "write"};
    const std::vector<std::pair<QByteArray, QByteArray>> files{{whole, ""}, {"junk", whole}};
    for (const auto& [file, backup] : files) {
        for (const auto& [what, fault, lasting] : kinds) {
            SCOPED_TRACE(what + (" over " + file).toStdString());
            EXPECT_EQ(strikeEach(file, backup, fault, lasting), operations);
        }
    }
}

TEST(Faults, WhatIsCutShortOrNotOnTheDiskTakesNoPlace) {
    for (const auto& struck : {std::pair{"read", cutShort}, std::pair{"fdatasync", EIO}}) {
        const Folder folder;
        folder.put("[init]\n0=120");
        settings::Store store(folder.ini);
        const std::string place = folder.folder.path().toStdString();
        playOn(store, [&](const auto& change) {
            plan() = {.folder = place, .first = 1, .lasting = true, .fault = struck.second, .only = struck.first};
            change();
            plan() = {};
            EXPECT_EQ(folder.bytes(), "[init]\n0=120") << struck.first;
        });
    }
}

}  // namespace
