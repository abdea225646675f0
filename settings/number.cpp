// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#include "settings/number.h"

#include <cmath>

#include <QLocale>

namespace settings {

std::optional<double> numberIn(const QString& text) {
    bool valid = false;
    const double number = text.toDouble(&valid);
    if (!valid || !std::isfinite(number)) {
        return std::nullopt;
    }
    return number;
}

QString plainDecimal(double number) {
    return QString::number(number, 'f', QLocale::FloatingPointShortest);
}

}  // namespace settings
