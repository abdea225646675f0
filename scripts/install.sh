#!/bin/bash
# SPDX-FileCopyrightText: 2026 The Zampotine developers
# SPDX-License-Identifier: MIT

# Installs the missing Debian packages for the named purposes: scripts/install.sh build game
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
    [tests]='libgtest-dev xvfb openbox xdotool x11-utils imagemagick python3 python3-pil python3-numpy python3-xlib'
    [desktops]='weston qt6-wayland qt6-gtk-platformtheme x11-session-utils x11-xserver-utils'
    [reader]='dbus-bin dbus-daemon at-spi2-core python3-pyatspi'
    [validators]='appstream desktop-file-utils lintian man-db reuse git'
    [asan]='clang libclang-rt-dev llvm'
    [lint]='git clang-format clang-tidy shellcheck pyflakes3'
    [art]='librsvg2-bin imagemagick icoutils sox'
    [root]='git mmdebstrap mount'
    [bench]='libbenchmark-dev libgtest-dev python3-xlib xvfb xdotool'
)

# The packages among the given ones that are not installed, in one line.
missing_of() {
    local installed
    # The query fails if one package is unknown, but it still lists the others.
    installed=$(dpkg-query --show --showformat='${Package} ${db:Status-Status}\n' "$@" 2>/dev/null) || true
    printf '%s installed\n' "$@" | sort -u | { grep -vxF -e "$installed" || true; } | cut -d' ' -f1 | paste -sd' '
}

# Runs apt-get as root, without a question.
apt() {
    local as_root=()
    [[ $EUID == 0 ]] || as_root=(sudo)
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get --yes -o DPkg::Lock::Timeout=120 "$@"
}

wanted=()
for purpose; do
    [[ -v packages[$purpose] ]] || fail "There is no list of packages for '$purpose', only for: ${!packages[*]}."
    read -ra list <<<"${packages[$purpose]}"
    wanted+=("${list[@]}")
done

if ! command -v apt-get >/dev/null; then
    say "This system has no apt-get, so nothing is installed. The needed packages have these names in Debian: ${wanted[*]}."
    exit 0
fi
missing=$(missing_of "${wanted[@]}")
[[ -n $missing ]] || exit 0

by_hand="have an administrator run: apt-get install --no-install-recommends $missing"
if [[ $EUID != 0 ]]; then
    command -v sudo >/dev/null || fail "Packages are missing, and there is neither root nor sudo to install them; $by_hand"
    say "Packages are missing; sudo may ask for your password to install them."
    sudo -v || fail "Packages are missing, and sudo refused to install them; $by_hand"
fi
say "Installing packages: $missing."
# The old package lists may be good enough. If they are not, the installation fails below.
logged apt-update apt update || say "The package lists could not be updated, so the old ones are used."
read -ra list <<<"$missing"
logged apt-install apt install --no-install-recommends "${list[@]}" ||
    fail "These packages are missing and could not be installed: $missing. Check the network, check that this is Debian 12 or newer, then run this again (see build/apt-install.log)."
