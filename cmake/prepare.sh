# Sourced by the commands: installs what is missing, configures and builds.
# shellcheck shell=bash disable=SC2034 # the lists are for the scripts that source this

say() { printf '%s\n' "$*" >&2; }

# choose_qt <argument>: if the argument is qt5 or qt6, chooses this Qt and its build folders, and
# returns true. The choice is exported, for the presets and for scripts that this one calls.
choose_qt() {
    case $1 in
        qt5 | qt6) export MALTO_QT_FOLDER=-$1 ;;
        *) return 1 ;;
    esac
    set_qt_packages
}

# Sets the package lists, which have the packages of the chosen Qt only: Qt 6 by default.
set_qt_packages() {
    case ${MALTO_QT_FOLDER:-} in
        -qt5) qt_major=5 ;;
        -qt6) qt_major=6 ;;
        *) qt_major=6 ;;
    esac
    if [ "$qt_major" = 6 ]; then
        macos_qt=qt
        QT_PACKAGES=(qt6-base-dev qt6-tools-dev qt6-tools-dev-tools qt6-l10n-tools
                     qt6-translations-l10n)
        WAYLAND_PACKAGES=(weston qt6-wayland)
        KCONFIG_PACKAGES=()
    else
        macos_qt=qt@5
        QT_PACKAGES=(qtbase5-dev qttools5-dev qttools5-dev-tools qttranslations5-l10n)
        WAYLAND_PACKAGES=(weston qtwayland5)
        KCONFIG_PACKAGES=(libkf5config-dev)
    fi
    MACOS_PACKAGES=(cmake ninja "$macos_qt" pkgconf google-benchmark)
    BUILD_PACKAGES=(g++ cmake ninja-build pkg-config "${QT_PACKAGES[@]}"
                    libxcb1-dev libxcb-keysyms1-dev libxcb-xkb-dev libxkbcommon-dev)
    TEST_PACKAGES=(python3 python3-fonttools python3-jsonschema doxygen libxcb-xtest0-dev openbox x11-utils
                   x11-xkb-utils librapidcheck-dev libbenchmark-dev clang-format shellcheck
                   dbus-daemon xdg-desktop-portal "${WAYLAND_PACKAGES[@]}")
    BENCHMARK_PACKAGES=(libbenchmark-dev python3 ${KCONFIG_PACKAGES[@]+"${KCONFIG_PACKAGES[@]}"})
}

DISPLAY_PACKAGES=(xvfb xauth fonts-dejavu-core fonts-liberation fonts-noto-core fonts-noto-cjk)
FUZZ_PACKAGES=(clang libclang-rt-dev llvm)
set_qt_packages

as_root() {
    if [ "$(id -u)" -eq 0 ]; then "$@"; else sudo "$@"; fi
}

# install_missing <Debian package>...: installs those that are not installed yet. On macOS it
# installs MACOS_PACKAGES instead.
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
    command -v dpkg-query >/dev/null || return 0 # another Linux: CMake names what is missing
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

# File names and output contain texts in every language.
[ -n "${LC_ALL:-}${LANG:-}" ] || export LC_ALL=C.UTF-8

# build_folder <preset>: prints the build folder, as CMakePresets.json defines it for the chosen Qt.
build_folder() {
    case $1 in
        default) printf 'build%s' "${MALTO_QT_FOLDER:-}" ;;
        *) printf 'build%s-%s' "${MALTO_QT_FOLDER:-}" "$1" ;;
    esac
}

# configure <preset> [<CMake option>...]: configures every time, because packages that were missing
# the last time may be installed by now.
configure() {
    local preset=$1
    shift
    # Warnings are errors on build servers only: elsewhere a newer compiler may have new ones.
    [ "${CI:-}" != true ] || set -- "$@" -DMALTO_DEVELOPER=ON
    if [ "$(uname)" = Darwin ]; then
        # Exported, because the tests of the packages also search for Qt.
        local qt
        qt=$(brew --prefix "$macos_qt")
        export CMAKE_PREFIX_PATH="$qt${CMAKE_PREFIX_PATH:+:$CMAKE_PREFIX_PATH}"
        export PKG_CONFIG_PATH="$qt/lib/pkgconfig${PKG_CONFIG_PATH:+:$PKG_CONFIG_PATH}"
    fi
    cmake --preset "$preset" "-DMALTO_QT_MAJOR=$qt_major" "$@" >&2
}

# build <preset> [<target>...]
build() {
    local folder target
    folder=$(build_folder "$1")
    shift
    for target in "$@"; do
        shift
        set -- "$@" "--target=$target"
    done
    cmake --build "$folder" "$@" >&2
}
