#!/usr/bin/env bash
# Builds the consumer against the project in one of three ways, and runs it; with "readme" the program of
# the README against the installed package, as the README says.
#   consume.sh package|pkgconfig|readme <build of the project> <work folder> <compiler> <flags>
#   consume.sh tree              <source of the project> <work folder> <compiler> <flags>
set -euo pipefail
way=$1 project=$2 work=$3 compiler=$4 flags=$5
consumer=$(cd "$(dirname "$0")/consumer" && pwd)
export QT_QPA_PLATFORM=offscreen CXX=$compiler CXXFLAGS=$flags

rm -rf "$work"
mkdir -p "$work"
build() { # <source folder> [<option>...]
    local source=$1
    shift
    cmake -G Ninja -S "$source" -B "$work/build" -DCMAKE_BUILD_TYPE=Debug "$@"
    cmake --build "$work/build"
}
# Where it was installed first there is nothing any more: the package must find its own way.
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
    names=(MaltoConfiguration MaltoOrvUtils MaltoQIconfont MaltoQxtGlobalShortcut)
    # Qt asks everybody for position-independent code.
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
    build "$work/host"
    "$work/build/consumer"
    # A host's tree gets the libraries and nothing else.
    ! find "$work/build" -name '*malto-demo*' -o -name 'tst_*' | grep .
    ;;
esac
