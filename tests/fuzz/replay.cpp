// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

// Stands in for the fuzzer where there is none: tries each file of a folder once.

#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <span>
#include <vector>

#include "tests/fuzz/target.h"

int main(int count, char** arguments) {
    const std::filesystem::path corpus = std::span(arguments, count).back();
    for (const auto& entry : std::filesystem::directory_iterator(corpus)) {
        std::cout << entry.path() << std::endl;  // before it may crash
        std::ifstream file(entry.path(), std::ios::binary);
        const std::vector<std::uint8_t> bytes{std::istreambuf_iterator(file), {}};
        LLVMFuzzerTestOneInput(bytes.data(), bytes.size());
    }
    return is_empty(corpus) ? 1 : 0;
}
