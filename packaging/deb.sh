#!/bin/bash
# SPDX-FileCopyrightText: 2026 The Zampotine developers
# SPDX-License-Identifier: MIT

# Builds the Debian package, with the same bytes in every folder unless SOURCE_DATE_EPOCH sets another date.
set -euo pipefail
cd "$(dirname "$0")/.."
# shellcheck source=scripts/steps.sh
. scripts/steps.sh

umask 022 # the package tells the modes of its parts
scripts/install.sh build package
scripts/build.sh deb
say "Packaging."
rm -f build/deb/zampotine_*.deb
logged deb-package cpack --preset deb || fail "The package could not be made (all of it in build/deb-package.log)."
say "The package is $(echo build/deb/zampotine_*.deb)."
