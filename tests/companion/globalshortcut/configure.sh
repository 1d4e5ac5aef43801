#!/usr/bin/env bash
# Configures the project without what global hotkeys need.
#   configure.sh <case> <source of the project> <work folder> <Qt: 5|6> <compiler>
set -euo pipefail
case=$1 project=$2 work=$3 qt_major=$4 compiler=$5

rm -rf "$work"
mkdir -p "$work"
configure() { # [<option>...]
    cmake -G Ninja -S "$project" -B "$work" -DCMAKE_CXX_COMPILER="$compiler" \
        -DMALTO_QT_MAJOR="$qt_major" -DMALTO_BUILD_TESTS=OFF -DMALTO_BUILD_DEMO=OFF \
        -DMALTO_BUILD_BENCHMARKS=OFF "$@" 2>&1 | tee "$work/log"
}

# As on a system on which pkg-config finds no package.
hide_packages() { export PKG_CONFIG_LIBDIR=/nonexistent PKG_CONFIG_PATH=; }

case $case in
missingPackagesEndTheConfiguration)
    hide_packages
    if configure; then
        echo "the configuration did not end"
        exit 1
    fi
    # CMake wraps the text of an error.
    sentences=$(tr -s ' \n' ' ' < "$work/log")
    for text in 'CMake Error at companion/globalshortcut/CMakeLists.txt' \
        'libxcb1-dev libxcb-keysyms1-dev libxcb-xkb-dev' -DMALTO_GLOBAL_HOTKEYS=OFF; do
        grep -qe "$text" <<< "$sentences" || { echo "missing: $text"; exit 1; }
    done
    ;;
noPackagesAreNeededWithoutHotkeys)
    hide_packages
    configure -DMALTO_GLOBAL_HOTKEYS=OFF
    ninja -C "$work" -n QxtGlobalShortcut > "$work/build"
    grep createBackendNull "$work/build"
    if grep X11 "$work/build"; then
        exit 1
    fi
    ;;
portalCanBeLeftOut)
    configure -DMALTO_PORTAL_HOTKEYS=OFF
    ninja -C "$work" -t commands QxtGlobalShortcut > "$work/build"
    if grep -e PortalSession -e DBus "$work/build"; then
        exit 1
    fi
    ninja -C "$work" "$(grep -o '[^ ]*createPortalBackendNull.cpp.o' "$work/build" | head -n 1)"
    ;;
*)
    echo "unknown case: $case"
    exit 2
    ;;
esac
