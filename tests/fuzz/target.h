// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

/// What each fuzz target defines: tries these bytes, and does not return if a law is broken.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

inline void law(bool holds, const char* text) {
    if (!holds) {
        std::fprintf(stderr, "This law is broken: %s\n", text);
        std::abort();
    }
}
