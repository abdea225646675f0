// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#include "rules/sound_choice.h"

namespace rules {

std::string_view soundFor(int balls) {
    if (balls < 3) {
        return "son2.WAV";
    }
    if (balls <= 10) {
        return "son5.WAV";
    }
    if (balls <= 50) {
        return "son10.WAV";
    }
    if (balls <= 80) {
        return "son50.WAV";
    }
    return "son80.WAV";
}

}  // namespace rules
