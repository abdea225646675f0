// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string>

/// File operations that fail as planned. A test links this library before all others; any other program can have it
/// preloaded, with the plan in the environment: FAULTS="folder first lasting fault log".
namespace faults {

inline constexpr int cutShort = -1;  ///< half of what was to be read or written, nothing of a single byte
inline constexpr int slow = -2;      ///< five milliseconds later

struct Plan {
    std::string folder;    ///< only operations on it and on what is in there count
    int first = 0;         ///< the operation that is struck, counted from 1
    bool lasting = false;  ///< so are all that follow
    int fault = 0;         ///< errno, `cutShort` or `slow`
    int immovable = 0;     ///< errno of every rename to a settings file, as if it were a mount point; 0 for none
    std::string only;      ///< operations of this name alone count, if it is not empty
    std::string log;       ///< a file that takes the name of the first operation struck
    std::string struck;    ///< that name
    int seen = 0;          ///< operations so far
};

/// The plan in force. An empty folder stops all faults.
Plan& plan();

}  // namespace faults
