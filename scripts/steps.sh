# SPDX-FileCopyrightText: 2026 The Zampotine developers
# SPDX-License-Identifier: MIT

# shellcheck shell=bash
# How the project's scripts speak: one sentence a step, the noise in a log, and on failure what to do.

say() {
    printf '%s\n' "$*"
}

fail() {
    printf '%s: %s\n' "${0##*/}" "$*" >&2
    exit 1
}

# logged NAME COMMAND... runs the command with its output in build/NAME.log. If it fails, so does this,
# after it has shown the errors in the log, or its end if none can be told apart.
logged() {
    local log=build/$1.log
    shift
    { mkdir -p build && : >"$log"; } 2>/dev/null ||
        fail "The file $log cannot be written; after a run as root, give the folder build to yourself or remove it."
    if ! "$@" >"$log" 2>&1 </dev/null; then
        {
            grep -E -A2 -m4 '^E: |CMake Error|error:|undefined reference|No space left' "$log" || tail -n 30 "$log"
        } | cut -c1-300 >&2
        return 1
    fi
}
