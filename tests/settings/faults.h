// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>
#include <string>

/// File operations of the test program that fail as planned. The functions in faults.cpp replace those of the system.
namespace faults {

inline constexpr int cutShort = -1;  ///< only half of the bytes are read or written

struct Plan {
    std::string folder;  ///< only operations on this folder and its files count; none if it is empty
    std::string only;    ///< only operations with this name count, if it is not empty
    int first = 1;       ///< the first operation that is struck, counted from 1
    int last = 0;        ///< the last one
    int fault = 0;       ///< errno, `cutShort`, or 0 if the struck operations succeed
    int immovable = 0;   ///< errno of every rename to a settings file, as if it were a mount point; 0 for none
    std::function<void()> meanwhile = [] {};  ///< what happens just before each struck operation
    std::string struck;                       ///< the name of the first operation that was struck
    int seen = 0;                             ///< the number of operations so far
};

/// The plan in force.
Plan& plan();

}  // namespace faults
