// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#include "settings/bestscores.h"

#include <optional>

#include "settings/number.h"

using namespace Qt::StringLiterals;

namespace settings {

namespace {

const QString section = u"init"_s;
const QString zero = u"0"_s;
constexpr int levels = 5;

bool hasLevel(int level) {
    return level >= 0 && level < levels;
}

}  // namespace

BestScores::BestScores(Store& where) : store(where), texts(levels, zero) {}

void BestScores::load() {
    for (int level = 0; level < levels; ++level) {
        load(level);
    }
}

void BestScores::load(int level) {
    if (hasLevel(level)) {
        texts[level] = store.read(section, QString::number(level), zero);
    }
}

const QString& BestScores::hsc(int level) const {
    return hasLevel(level) ? texts.at(level) : zero;
}

void BestScores::sc_Change(int Diff, const QString& sc) {
    const std::optional<double> best = numberIn(hsc(Diff));
    const std::optional<double> score = numberIn(sc);
    if (hasLevel(Diff) && score && (!best || *best < *score)) {
        texts[Diff] = store.raise(section, QString::number(Diff), plainDecimal(*score));
    }
}

void BestScores::reset(int Diff) {
    if (hasLevel(Diff)) {
        store.reset(section, QString::number(Diff));
        texts[Diff] = zero;
    }
}

}  // namespace settings
