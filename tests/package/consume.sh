#!/usr/bin/env bash
# Builds the consumer against the project in one of three ways, and runs it. With "readme" it builds
# the README's program against the installed package; with "preset" it looks at what the presets for
# installing would build.
#   consume.sh package|pkgconfig|readme <build of the project> <work folder> <Qt: 5|6> <compiler> <flags>
#   consume.sh tree|preset       <source of the project> <work folder> <Qt: 5|6> <compiler> <flags>
set -euo pipefail
way=$1 project=$2 work=$3 qt_major=$4 compiler=$5 flags=$6
consumer=$(cd "$(dirname "$0")/consumer" && pwd)
export QT_QPA_PLATFORM=offscreen CXX=$compiler CXXFLAGS=$flags

rm -rf "$work"
mkdir -p "$work"
build() { # <source folder> [<option>...]
    local source=$1
    shift
    # Nobody debugs it, and it is built faster without debug information.
    cmake -G Ninja -S "$source" -B "$work/build" -DCMAKE_BUILD_TYPE=Debug -DCMAKE_CXX_FLAGS_DEBUG=-g0 "$@"
    cmake --build "$work/build"
}
# The package must work after it was moved.
install_and_move() {
    cmake --install "$project" --prefix "$work/first" >/dev/null
    mkdir "$work/moved"
    mv "$work/first" "$work/moved/here"
}

case $way in
package)
    install_and_move
    build "$consumer" -DCMAKE_PREFIX_PATH="$work/moved/here"
    test -s "$work/build/Resources/language/de-de.qm"
    "$work/build/consumer"
    ;;
readme)
    install_and_move
    build "$consumer/../../../examples/minimal" -DCMAKE_PREFIX_PATH="$work/moved/here"
    test -x "$work/build/your-program"
    ;;
pkgconfig)
    install_and_move
    modules=$(find "$work/moved/here" -name pkgconfig)
    export PKG_CONFIG_PATH=$modules
    suffix=
    [ "$qt_major" = 5 ] || suffix=-qt$qt_major
    names=(MaltoConfiguration"$suffix" MaltoOrvUtils"$suffix" MaltoQIconfont"$suffix"
           MaltoQxtGlobalShortcut"$suffix")
    # Qt requires position-independent code.
    # shellcheck disable=SC2046,SC2086
    $compiler $flags -std=c++17 -fPIC "$consumer/main.cpp" -o "$work/consumer" \
        $(pkg-config --cflags --libs "${names[@]}")
    libraries=$(dirname "$modules")
    LD_LIBRARY_PATH=$libraries DYLD_LIBRARY_PATH=$libraries "$work/consumer"
    ;;
tree)
    mkdir "$work/host"
    cp "$consumer"/* "$work/host"
    mkdir "$work/host/ThirdParty"
    ln -s "$project" "$work/host/ThirdParty/MaltoConfiguration"
    build "$work/host" -DMALTO_QT_MAJOR="$qt_major"
    "$work/build/consumer"
    # As a subfolder of a host, only the libraries are built.
    if find "$work/build" -name '*malto-demo*' -o -name 'tst_*' | grep .; then
        exit 1
    fi
    ;;
preset)
    for preset in install package; do
        cmake --preset "$preset" -S "$project" -B "$work/$preset" -DMALTO_QT_MAJOR="$qt_major"
        ninja -C "$work/$preset" -n > "$work/$preset.log"
        test "$(grep -c 'Linking CXX shared library' "$work/$preset.log")" = 4
        if grep -E 'Linking CXX executable|demo/|examples/|benchmarks/|pictures/' "$work/$preset.log"; then
            exit 1
        fi
    done
    ;;
esac
