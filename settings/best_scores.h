// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QStringList>

#include "settings/store.h"

namespace settings {

/// The best score of each level, stored under the digit of the level. A level that does not exist reads as "0" and
/// cannot be changed.
class BestScores {
  public:
    /// All best scores are "0" until they are loaded. The levels are 0 to `levels` - 1. The store must outlive this.
    BestScores(Store& where, int levels);

    /// Reads the best scores of all levels, or of one, from the store; "0" for a level without one.
    void load();
    void load(int level);

    /// The text of the level's best score, as stored: it may be no number.
    const QString& hsc(int level) const;

    /// Replaces and stores the level's best score if it is less than the score or no number. If another copy of the
    /// program has stored a higher one, takes that. A score that is no number changes nothing.
    void raise(int level, const QString& score);

    /// Sets the level's best score to "0" and stores it.
    void reset(int level);

  private:
    bool hasLevel(int level) const;

    Store& store;
    QStringList texts;
};

}  // namespace settings
