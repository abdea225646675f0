// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include "settings/store.h"

/// The settings that are kept between runs in addition to the best scores, each with its key and its default.
namespace settings::stored {

/// The section that holds everything the game stores.
inline const QString section = QStringLiteral("init");

struct Setting {
    QLatin1StringView key;
    QLatin1StringView fallback;
};

inline constexpr Setting level{QLatin1StringView("Niveau"), QLatin1StringView("0")};
inline constexpr Setting columns{QLatin1StringView("Col"), QLatin1StringView("25")};
inline constexpr Setting rows{QLatin1StringView("Lig"), QLatin1StringView("25")};
inline constexpr Setting sound{QLatin1StringView("Son"), QLatin1StringView("1")};

/// The stored text of the setting, or its default if nothing is stored.
QString read(const Store& store, const Setting& setting);

/// The stored number, rounded to a whole number. Returns the default if the text is no number or the number does not
/// fit into an int.
int readWholeNumber(const Store& store, const Setting& setting);

void write(Store& store, const Setting& setting, const QString& text);

}  // namespace settings::stored
