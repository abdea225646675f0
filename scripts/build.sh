#!/bin/bash
# SPDX-FileCopyrightText: 2026 The Zampotine developers
# SPDX-License-Identifier: MIT

# Configures and builds one preset, with more options of CMake if need be: scripts/build.sh release
set -euo pipefail
cd "$(dirname "$0")/.."
# shellcheck source=scripts/steps.sh
. scripts/steps.sh
preset=$1
shift

for tool in cmake ninja; do
    command -v $tool >/dev/null || fail "The program $tool is missing; install it and the other packages named above."
done
oldest=3.25
version=$(cmake --version | sed -n 's/^cmake version //p')
printf '%s\n' $oldest "$version" | sort -CV || fail "CMake $version is too old; install CMake $oldest or newer, Debian 12 has it."

say "Building the preset $preset."
logged "$preset-configure" cmake --preset "$preset" "$@" ||
    fail "The build could not be set up (all of it in build/$preset-configure.log); if build/$preset was made elsewhere or with other tools, remove it and run this again."
logged "$preset-build" cmake --build --preset "$preset" ||
    fail "The build failed (all of it in build/$preset-build.log)."
