// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>

#include <QString>

namespace settings {

/// Reads a decimal number, with or without an exponent, in the C locale; blanks around it are ignored. Nothing for any
/// other text: empty, "abc", "nan", "inf", "0x10", "1,5" or a number beyond the range of a double.
std::optional<double> numberIn(const QString& text);

/// The number as decimal text: no exponent, and no decimal part for a whole number.
QString plainDecimal(double number);

}  // namespace settings
