#!/usr/bin/env bash
# Takes the pictures of the features of the settings window again: docs/pictures/features/*.png.
# Uses the demo with real keys on an X server of its own.
set -euo pipefail
cd "$(dirname "$0")/../.."
. cmake/prepare.sh

if [ "${1:-}" != inside ]; then
    install_missing "${BUILD_PACKAGES[@]}" "${DISPLAY_PACKAGES[@]}" imagemagick openbox xdotool optipng
    configure default
    build default malto-demo
    exec xvfb-run -a -s '-screen 0 1366x768x24 -dpi 96' "$0" inside
fi

folder=docs/pictures/features
work=$(mktemp -d)
trap 'kill $(jobs -p) 2>/dev/null; rm -rf "$work"' EXIT
mkdir -p "$folder"
openbox >/dev/null 2>&1 &
"$(build_folder default)"/bin/malto-demo --local-file "$work/local.json" --theme light --language en-us \
    --page Capture >/dev/null 2>&1 &
window=$(xdotool search --sync --onlyvisible --name '^Settings' | tail -1)
xdotool windowactivate --sync "$window"

# A picture has no certain moment: the window is drawn when two pictures of it are equal.
take() {
    rm -f "$work/before.ppm"
    until import -window "$window" "$work/next.ppm" && cmp -s "$work/next.ppm" "$work/before.ppm"; do
        mv "$work/next.ppm" "$work/before.ppm"
        sleep 0.3
    done
    convert "$work/next.ppm" "$folder/$1.png"
}
keys() { xdotool key --clearmodifiers "$@"; }

keys ctrl+f
xdotool type hotk
sleep 1
take find
keys Escape ctrl+f
xdotool type 'delay capture'
sleep 1
keys Return
sleep 1
keys ctrl+a
xdotool type 7
take reset
keys ctrl+f
xdotool type @changed
sleep 1
take changed
keys Escape
optipng -quiet -strip all "$folder"/*.png
ls -l "$folder"
