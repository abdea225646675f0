// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include "settings/store.h"

/// The settings that are kept between runs, beside the best scores: each with its key and its default.
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

/// The stored text, or the default if there is none.
QString read(const Store& store, const Setting& setting);

/// The whole number nearest to the stored number. The default if the text is no number or its size is beyond an int.
int readWholeNumber(const Store& store, const Setting& setting);

void write(Store& store, const Setting& setting, const QString& text);

}  // namespace settings::stored
