#!/usr/bin/env bash
# Runs the mutation test, which reports changes of the library that make no test fail:
# tests/mutation/run.sh [options]. Takes an hour or more and can be stopped and resumed. Options:
# tests/mutation/mutate.py --help
set -euo pipefail
cd "$(dirname "$0")/../.."
. cmake/prepare.sh

install_missing "${BUILD_PACKAGES[@]}" "${DISPLAY_PACKAGES[@]}" "${TEST_PACKAGES[@]}" rsync git
exec python3 tests/mutation/mutate.py "$@"
