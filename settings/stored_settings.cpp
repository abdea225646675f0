// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#include "settings/stored_settings.h"

#include <climits>
#include <cmath>

#include "settings/number.h"

namespace settings::stored {

QString read(const Store& store, const Setting& setting) {
    return store.read(section, setting.key, setting.fallback);
}

int readWholeNumber(const Store& store, const Setting& setting) {
    const auto number = numberIn(read(store, setting));
    return number && std::abs(*number) <= INT_MAX ? static_cast<int>(std::lround(*number)) : setting.fallback.toInt();
}

void write(Store& store, const Setting& setting, const QString& text) {
    store.write(section, setting.key, text);
}

}  // namespace settings::stored
