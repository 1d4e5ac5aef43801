#!/usr/bin/env bash
# Breaks the library in small ways and reports what no test notices: tests/mutation/run.sh [options].
# Takes an hour or more and goes on where it was stopped. Options: tests/mutation/mutate.py --help
set -euo pipefail
cd "$(dirname "$0")/../.."
. cmake/prepare.sh

install_missing "${BUILD_PACKAGES[@]}" "${DISPLAY_PACKAGES[@]}" "${TEST_PACKAGES[@]}" rsync git
exec python3 tests/mutation/mutate.py "$@"
