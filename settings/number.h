// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>

#include <QString>

namespace settings {

/// Reads a decimal number in the C locale, with or without an exponent. Blanks around the number are ignored. Returns
/// nullopt for any other text, such as "", "abc", "nan", "inf", "0x10" or "1,5", and for a number beyond the range of a
/// double.
std::optional<double> numberIn(const QString& text);

/// The number as decimal text without an exponent. A whole number has no decimal part.
QString plainDecimal(double number);

}  // namespace settings
