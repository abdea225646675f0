#!/bin/bash
# SPDX-FileCopyrightText: 2026 The Zampotine developers
# SPDX-License-Identifier: MIT

# Usage: scripts/screenshot.sh PROGRAM SCREENSHOT
# Shows the game on a virtual display and saves a screenshot of its window.
set -euo pipefail
cd "$(dirname "$0")/.."
# shellcheck source=scripts/steps.sh
. scripts/steps.sh
program=$1 screenshot=$2

work=$(mktemp -d)
processes=()

# within SECONDS COMMAND...: repeats the command until it succeeds. Fails if the seconds pass without success.
within() {
    local end=$((SECONDS + $1))
    shift
    until "$@"; do
        ((SECONDS < end)) || return 1
        sleep 0.1
    done
}

all_ended() {
    ! kill -0 "$@" 2>/dev/null
}

clean_up() {
    kill "${processes[@]}" 2>/dev/null || true
    within 5 all_ended "${processes[@]}" || kill -KILL "${processes[@]}" 2>/dev/null || true
    rm -rf "$work"
}
trap clean_up EXIT

# A window that opens before the window manager is ready may stay hidden.
manager_ready() {
    timeout 5 xprop -root _NET_SUPPORTING_WM_CHECK 2>/dev/null | grep -q 'window id'
}

window_shown() {
    window=$(timeout 5 xdotool search --onlyvisible --class zampotine 2>/dev/null | head -n 1) && [[ -n $window ]]
}

# Succeeds if the window has many colours and looks as it did at the previous call of this function.
painted() {
    local before=${look-}
    timeout 10 import -window "$window" "$work/window.png" 2>/dev/null || return
    look=$(identify -format '%k %#' "$work/window.png")
    [[ $look == "$before" ]] && ((${look% *} >= 64))
}

# The game must not use the player's desktop or settings.
unset WAYLAND_DISPLAY XAUTHORITY SESSION_MANAGER
export XDG_CONFIG_HOME=$work XDG_RUNTIME_DIR=$work QT_QPA_PLATFORM=xcb

Xvfb -displayfd 3 -screen 0 1280x1024x24 -nolisten tcp 3>"$work/number" >build/display.log 2>&1 </dev/null &
processes+=($!)
within 20 test -s "$work/number" || fail "The virtual display did not start (see build/display.log)."
DISPLAY=:$(<"$work/number")
export DISPLAY
openbox >>build/display.log 2>&1 </dev/null &
processes+=($!)
within 20 manager_ready || fail "The window manager did not start (see build/display.log)."
"$program" >build/game.log 2>&1 </dev/null &
game=$!
processes+=("$game")

within 30 window_shown || fail "The game showed no window on the virtual display (see build/game.log)."
within 20 painted || fail "The game's window was not painted on the virtual display (see build/game.log)."
mv "$work/window.png" "$screenshot"
kill -TERM "$game"
within 20 all_ended "$game" || fail "The game did not end after SIGTERM."
wait "$game" || fail "The game ended with status $? (see build/game.log)."
