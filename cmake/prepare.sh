# Sourced by ./run, ./test and ./bench: installs what is missing, configures and builds.

say() { printf '%s\n' "$*" >&2; }

# Installs those of the given packages that the system lacks, with its own package manager.
install_missing() {
    if [ "$(uname)" = Darwin ]; then
        command -v brew >/dev/null || { say "Homebrew is needed: https://brew.sh"; exit 1; }
        local formula missing=()
        for formula in "${MACOS_PACKAGES[@]}"; do
            brew list "$formula" >/dev/null 2>&1 || missing+=("$formula")
        done
        [ ${#missing[@]} -eq 0 ] && return
        say "Installing: ${missing[*]}"
        brew install --quiet "${missing[@]}"
        return
    fi
    command -v dpkg-query >/dev/null || return 0 # another Linux: CMake says what it misses
    local package missing=()
    for package in "$@"; do
        dpkg-query -W -f '${Status}' "$package" 2>/dev/null | grep -q 'ok installed' \
            || missing+=("$package")
    done
    [ ${#missing[@]} -eq 0 ] && return
    say "Installing: ${missing[*]}"
    local as_root=()
    [ "$(id -u)" -eq 0 ] || as_root=(sudo)
    "${as_root[@]}" apt-get update -qq
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
        apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
}

MACOS_PACKAGES=(cmake ninja qt@5 google-benchmark)
BUILD_PACKAGES=(g++ cmake ninja-build pkg-config qtbase5-dev qttools5-dev qttools5-dev-tools
                qttranslations5-l10n libxcb1-dev libxcb-keysyms1-dev libxcb-xkb-dev)
DISPLAY_PACKAGES=(xvfb xauth fonts-dejavu-core fonts-liberation fonts-noto-core fonts-noto-cjk)
TEST_PACKAGES=(python3 python3-fonttools python3-jsonschema doxygen libxcb-xtest0-dev openbox x11-utils
               librapidcheck-dev libbenchmark-dev)
BENCHMARK_PACKAGES=(libbenchmark-dev libkf5config-dev python3)
FUZZ_PACKAGES=(clang libclang-rt-dev llvm)

# Texts of every language pass through the console and the file system.
[ -n "${LC_ALL:-}${LANG:-}" ] || export LC_ALL=C.UTF-8
if [ "$(uname)" = Darwin ] && command -v brew >/dev/null; then
    export CMAKE_PREFIX_PATH="$(brew --prefix qt@5 2>/dev/null)${CMAKE_PREFIX_PATH:+:$CMAKE_PREFIX_PATH}"
fi

# configure_and_build <preset> <build folder> [<target>...]
configure_and_build() {
    local preset=$1 folder=$2
    shift 2
    # On the build servers warnings are errors; a stranger's newer compiler must not stop the build.
    local strict=()
    [ "${CI:-}" = true ] && strict=(-DMALTO_DEVELOPER=ON)
    [ -f "$folder/build.ninja" ] || cmake --preset "$preset" "${strict[@]}" >&2
    cmake --build "$folder" "${@/#/--target=}" >&2
}
