// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#include "settings/best_scores.h"

#include <optional>

#include "settings/number.h"
#include "settings/stored_settings.h"

using namespace Qt::StringLiterals;

namespace settings {

namespace {

using stored::section;

const QString zero = u"0"_s;

}  // namespace

BestScores::BestScores(Store& where, int levels) : store(where), texts(levels, zero) {}

bool BestScores::hasLevel(int level) const {
    return level >= 0 && level < texts.size();
}

void BestScores::load() {
    for (int level = 0; hasLevel(level); ++level) {
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

void BestScores::raise(int level, const QString& score) {
    const std::optional<double> best = numberIn(hsc(level));
    const std::optional<double> candidate = numberIn(score);
    if (hasLevel(level) && candidate && (!best || *best < *candidate)) {
        texts[level] = store.raise(section, QString::number(level), plainDecimal(*candidate));
    }
}

void BestScores::reset(int level) {
    if (hasLevel(level)) {
        store.reset(section, QString::number(level));
        texts[level] = zero;
    }
}

}  // namespace settings
