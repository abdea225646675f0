# SPDX-FileCopyrightText: 2026 The Zampotine developers
# SPDX-License-Identifier: MIT

# shellcheck shell=bash
# Functions that the project's scripts share. A script prints one sentence for each step and writes details to a log.

say() {
    printf '%s\n' "$*"
}

fail() {
    printf '%s: %s\n' "${0##*/}" "$*" >&2
    exit 1
}

# logged NAME COMMAND...: runs the command with its output in build/NAME.log. If the command fails, logged prints the
# errors in the log, or the end of the log if it finds no errors there, and fails.
logged() {
    local log=build/$1.log
    shift
    { mkdir -p build && : >"$log"; } 2>/dev/null ||
        fail "The file $log cannot be written. If root owns the folder build, become its owner or remove it."
    if ! "$@" >"$log" 2>&1 </dev/null; then
        {
            grep -E -A2 -m4 '^E: |CMake Error|error:|undefined reference|No space left' "$log" || tail -n 30 "$log"
        } | cut -c1-300 >&2
        return 1
    fi
}
