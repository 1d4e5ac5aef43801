#!/usr/bin/env bash
# What a new user does on a bare Debian 12: installs the packages, copies the README's program and
# its CMake file, builds and runs it. Takes a picture of its window.
#   ./check [qt5|qt6] stranger [<folder for the picture>]
# Linux only: needs root, debootstrap and the network; takes some minutes.
set -euo pipefail
cd "$(dirname "$0")/../.."
. cmake/prepare.sh
packages=$(build_folder package)
out=$(realpath -m "${1:-$packages}")

install_missing "${BUILD_PACKAGES[@]}" debootstrap dpkg-dev file lintian
configure package
build package
rm -f "$packages"/*.deb
(cd "$packages" && cpack -G DEB >&2)
lintian --allow-root --fail-on error "$packages"/*.deb >&2

root=$(mktemp -d)
trap 'umount "$root/proc" 2>/dev/null || true; rm -rf "$root"' EXIT
debootstrap --variant=minbase bookworm "$root" >&2
cp -r /etc/apt/apt.conf.d/. "$root/etc/apt/apt.conf.d/" # proxy settings of this computer
mount -t proc proc "$root/proc" 2>/dev/null || true
mkdir "$root/stranger"
cp "$packages"/*.deb "$root/stranger"

# The blocks of the README.
block() { # <language> <text on its first line>
    awk -v fence="\`\`\`$1" -v first="$2" '
        $0 == fence { getline; inside = index($0, first) == 1 }
        /^```$/ { inside = 0 }
        inside' README.md
}
block cpp '#include <MaltoConfiguration' > "$root/stranger/main.cpp"
block cmake cmake_minimum_required > "$root/stranger/CMakeLists.txt"
test -s "$root/stranger/main.cpp"
test -s "$root/stranger/CMakeLists.txt"

cat > "$root/stranger/go" <<'END'
set -eu
export DEBIAN_FRONTEND=noninteractive
cd /stranger
apt-get update -qq
apt-get install -y -qq --no-install-recommends ./*.deb g++ cmake make >/dev/null
apt-get install -y -qq --no-install-recommends \
    xvfb xauth xdotool imagemagick fonts-dejavu-core >/dev/null
cmake -S . -B build
cmake --build build
xvfb-run -a -s '-screen 0 1400x900x24' sh -ec '
    build/your-program &
    xdotool search --sync --onlyvisible --name "Quorvi Configuration" >/dev/null
    while import -window root window.png && [ "$(identify -format %k window.png)" -lt 50 ]; do :; done
    kill $!'
END
# The environment of this machine stays out, apart from its proxies.
env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin HOME=/root http_proxy="${http_proxy:-}" \
    https_proxy="${https_proxy:-}" chroot "$root" sh /stranger/go >&2
mkdir -p "$out"
cp "$root/stranger/window.png" "$out/stranger.png"
printf '%s\n' "$out/stranger.png"
