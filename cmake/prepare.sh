# Sourced by the commands: installs what is missing, configures and builds.
# shellcheck shell=bash disable=SC2034 # the lists are for those who source this

say() { printf '%s\n' "$*" >&2; }

as_root() {
    if [ "$(id -u)" -eq 0 ]; then "$@"; else sudo "$@"; fi
}

# Installs those of the given packages that the system lacks, with its own package manager.
install_missing() {
    local package
    if [ "$(uname)" = Darwin ]; then
        command -v brew >/dev/null || { say "Homebrew is needed: https://brew.sh"; exit 1; }
        for package in "${MACOS_PACKAGES[@]}"; do
            brew list "$package" >/dev/null 2>&1 && continue
            say "Installing: $package"
            brew install --quiet "$package"
        done
        return
    fi
    command -v dpkg-query >/dev/null || return 0 # another Linux: CMake says what it misses
    local missing=
    for package in "$@"; do
        dpkg-query -W -f '${Status}' "$package" 2>/dev/null | grep -q 'ok installed' \
            || missing="$missing $package"
    done
    [ -n "$missing" ] || return 0
    say "Installing:$missing"
    as_root apt-get update -qq
    # shellcheck disable=SC2086 # one word for each package
    as_root env DEBIAN_FRONTEND=noninteractive \
        apt-get install -y -qq --no-install-recommends $missing >/dev/null
}

MACOS_PACKAGES=(cmake ninja qt@5 pkgconf google-benchmark)
BUILD_PACKAGES=(g++ cmake ninja-build pkg-config qtbase5-dev qttools5-dev qttools5-dev-tools
                qttranslations5-l10n libxcb1-dev libxcb-keysyms1-dev libxcb-xkb-dev)
DISPLAY_PACKAGES=(xvfb xauth fonts-dejavu-core fonts-liberation fonts-noto-core fonts-noto-cjk)
TEST_PACKAGES=(python3 python3-fonttools python3-jsonschema doxygen libxcb-xtest0-dev openbox x11-utils
               librapidcheck-dev libbenchmark-dev shellcheck)
BENCHMARK_PACKAGES=(libbenchmark-dev libkf5config-dev python3)
FUZZ_PACKAGES=(clang libclang-rt-dev llvm)

# Texts of every language pass through the console and the file system.
[ -n "${LC_ALL:-}${LANG:-}" ] || export LC_ALL=C.UTF-8
if [ "$(uname)" = Darwin ] && command -v brew >/dev/null; then
    CMAKE_PREFIX_PATH="$(brew --prefix qt@5 2>/dev/null)${CMAKE_PREFIX_PATH:+:$CMAKE_PREFIX_PATH}"
    export CMAKE_PREFIX_PATH
fi

# configure_and_build <preset> <build folder> [<target>...]
configure_and_build() {
    local preset=$1 folder=$2 target
    shift 2
    # On the build servers warnings are errors; a newer compiler elsewhere must not stop the build.
    local strict=
    [ "${CI:-}" != true ] || strict=-DMALTO_DEVELOPER=ON
    [ -f "$folder/build.ninja" ] || cmake --preset "$preset" ${strict:+"$strict"} >&2
    for target in "$@"; do
        shift
        set -- "$@" "--target=$target"
    done
    cmake --build "$folder" "$@" >&2
}
