#!/usr/bin/env bash
# Runs the mutation test, which reports changes of the libraries that make no test fail:
#   ./check [qt5|qt6] mutation [option...]
# Takes two hours or more and can be stopped and resumed. Options: tests/mutation/mutate.py --help
set -euo pipefail
cd "$(dirname "$0")/../.."
. cmake/prepare.sh

install_missing "${BUILD_PACKAGES[@]}" "${DISPLAY_PACKAGES[@]}" "${TEST_PACKAGES[@]}" rsync git
exec python3 tests/mutation/mutate.py --qt "$qt_major" --work "$(build_folder mutation)" "$@"
