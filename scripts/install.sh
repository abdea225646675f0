#!/bin/bash
# SPDX-FileCopyrightText: 2026 The Zampotine developers
# SPDX-License-Identifier: MIT

# Usage: scripts/install.sh PURPOSE..., for example: scripts/install.sh build game
# Installs the Debian packages that the purposes need, except those already installed.
set -euo pipefail
cd "$(dirname "$0")/.."
# shellcheck source=scripts/steps.sh
. scripts/steps.sh

declare -A packages=(
    [build]='g++ cmake ninja-build make pkgconf qt6-base-dev libsdl2-dev librsvg2-dev'
    [game]='fonts-liberation x11-utils'
    [package]='dpkg-dev file'
    [wayland]='qt6-wayland wayland-utils'
    [screen]='xvfb openbox xdotool x11-utils imagemagick'
    [tests]='libgtest-dev libgmock-dev xvfb openbox xdotool x11-utils imagemagick python3 python3-pil python3-numpy python3-xlib'
    [desktops]='weston qt6-wayland qt6-gtk-platformtheme x11-session-utils x11-xserver-utils'
    [reader]='dbus-bin dbus-daemon at-spi2-core python3-pyatspi'
    [validators]='appstream desktop-file-utils lintian man-db reuse git'
    [asan]='clang libclang-rt-dev llvm'
    [lint]='git clang-format clang-tidy shellcheck flake8'
    [art]='librsvg2-bin imagemagick icoutils sox'
    [root]='git mmdebstrap mount'
    [bench]='libbenchmark-dev libgtest-dev python3-xlib xvfb xdotool'
)

# missing_of PACKAGE...: prints on one line which of the packages are not installed.
missing_of() {
    local installed
    # If a package is unknown, dpkg-query fails, but it still lists the other packages.
    installed=$(dpkg-query --show --showformat='${Package} ${db:Status-Status}\n' "$@" 2>/dev/null) || true
    printf '%s installed\n' "$@" | sort -u | { grep -vxF -e "$installed" || true; } | cut -d' ' -f1 | paste -sd' '
}

# Runs apt-get as root and without questions.
apt() {
    local as_root=()
    [[ $EUID == 0 ]] || as_root=(sudo)
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get --yes -o DPkg::Lock::Timeout=120 "$@"
}

wanted=()
for purpose; do
    [[ -v packages[$purpose] ]] || fail "Unknown purpose '$purpose'. The purposes are: ${!packages[*]}."
    read -ra list <<<"${packages[$purpose]}"
    wanted+=("${list[@]}")
done

if ! command -v apt-get >/dev/null; then
    say "This system has no apt-get, so nothing is installed. On Debian, the needed packages are: ${wanted[*]}."
    exit 0
fi
missing=$(missing_of "${wanted[@]}")
[[ -n $missing ]] || exit 0

by_hand="Ask an administrator to run: apt-get install --no-install-recommends $missing"
if [[ $EUID != 0 ]]; then
    command -v sudo >/dev/null || fail "Packages are missing, but you are not root and there is no sudo. $by_hand"
    say "Packages are missing. To install them, sudo may ask for your password."
    sudo -v || fail "Packages are missing, but sudo refused. $by_hand"
fi
say "Installing packages: $missing."
# Old package lists may be good enough. If they are not, the installation below fails.
logged apt-update apt update || say "The package lists could not be updated. Using the old lists."
read -ra list <<<"$missing"
logged apt-install apt install --no-install-recommends "${list[@]}" ||
    fail "These packages could not be installed: $missing (see build/apt-install.log). Check the network, check that this is Debian 12 or newer, then try again."
