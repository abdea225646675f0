// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QStringList>

#include "settings/store.h"

namespace settings {

/// The best score of each level. In the store, the key of a best score is the number of the level. The best score of a
/// level that does not exist is "0" and cannot be changed.
class BestScores {
  public:
    /// All best scores are "0" until they are loaded. The levels are 0 to `levels` - 1. The store must outlive this
    /// object.
    BestScores(Store& where, int levels);

    /// Reads the best scores of all levels from the store. A level without a stored best score gets "0".
    void load();
    /// Reads the best score of one level from the store.
    void load(int level);

    /// The best score of the level: the stored text, which is not always a number.
    const QString& hsc(int level) const;

    /// Sets the best score of the level to `score` and stores it, if the old best score is lower or is no number. If
    /// another copy of the program has stored a higher score, takes the higher score instead. Does nothing if `score`
    /// is no number.
    void raise(int level, const QString& score);

    /// Sets the best score of the level to "0" and stores it.
    void reset(int level);

  private:
    bool hasLevel(int level) const;

    Store& store;
    QStringList texts;
};

}  // namespace settings
