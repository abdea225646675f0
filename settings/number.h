// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>

#include <QString>

namespace settings {

/// The decimal number, with or without an exponent, that the text spells in the C locale, outer blanks aside.
/// Nothing for any other text: empty, "abc", "nan", "inf", "0x10", "1,5" or beyond the range of a double.
std::optional<double> numberIn(const QString& text);

/// The number in plain decimal: no exponent, and no decimal part for a whole number.
QString plainDecimal(double number);

}  // namespace settings
