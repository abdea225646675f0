#!/bin/bash
# SPDX-FileCopyrightText: 2026 The Zampotine developers
# SPDX-License-Identifier: MIT

# Usage: scripts/build.sh PRESET [OPTION...]
# Configures and builds the preset. The options go to the configure step of CMake.
set -euo pipefail
cd "$(dirname "$0")/.."
# shellcheck source=scripts/steps.sh
. scripts/steps.sh
preset=$1
shift

for tool in cmake ninja; do
    command -v $tool >/dev/null || fail "The program $tool is missing. Install the packages named above."
done
oldest=3.25
version=$(cmake --version | sed -n 's/^cmake version //p')
printf '%s\n' $oldest "$version" | sort -CV || fail "CMake $version is too old. Install CMake $oldest or newer. Debian 12 and later have it."

say "Building the preset $preset."
logged "$preset-configure" cmake --preset "$preset" "$@" ||
    fail "CMake could not configure the build (see build/$preset-configure.log). If the folder build/$preset was made in another place or with other tools, remove the folder and try again."
logged "$preset-build" cmake --build --preset "$preset" ||
    fail "The build failed (see build/$preset-build.log)."
