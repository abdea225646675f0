#!/bin/bash
# SPDX-FileCopyrightText: 2026 The Zampotine developers
# SPDX-License-Identifier: MIT

# Builds the Debian package. Its bytes are the same in every folder and with every umask. Its files get the date of the
# release; SOURCE_DATE_EPOCH overrides this date.
set -euo pipefail
cd "$(dirname "$0")/.."
# shellcheck source=scripts/steps.sh
. scripts/steps.sh

umask 022 # A package stores the modes of the three files inside it, which CPack creates.
scripts/install.sh build package
scripts/build.sh deb
say "Packaging."
rm -f build/deb/zampotine_*.deb
logged deb-package cpack --preset deb || fail "The package could not be made (see build/deb-package.log)."
say "The package is $(echo build/deb/zampotine_*.deb)."
