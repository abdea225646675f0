// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QStringList>

#include "settings/store.h"

namespace settings {

/// The best score of each level, 0 to 4, kept in the section "init" of a store under the level's digit.
/// Another level has none: it reads as "0", and nothing that is done to it has an effect.
class BestScores {
  public:
    /// All five are "0" until they are loaded. The store must outlive the table.
    explicit BestScores(Store& where);

    /// Takes all five, or the one of a level, from the store; "0" where it has none.
    void load();
    void load(int level);

    /// The text of the level's best score, as stored: not always a number.
    const QString& hsc(int level) const;

    /// The best-score rule, for each change of the score `sc` in a game at level `Diff`: a best score that is
    /// less, or no number, is replaced by the score and stored. If another copy of the program has stored a
    /// higher one meanwhile, that one is taken over instead. A score that is no number changes nothing.
    void sc_Change(int Diff, const QString& sc);

    /// Sets the level's best score to "0" and stores it.
    void reset(int Diff);

  private:
    Store& store;
    QStringList texts;
};

}  // namespace settings
