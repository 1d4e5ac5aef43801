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

# Starts the demo with the options, and waits for its settings window.
start() {
    rm -f "$work/local.json"
    "$(build_folder default)"/bin/malto-demo --local-file "$work/local.json" --theme light \
        --language en-us --page Capture "$@" >/dev/null 2>&1 &
    demo=$!
    window=$(xdotool search --sync --onlyvisible --name '^Settings' | tail -1)
    xdotool windowactivate --sync "$window"
    measure
}
quit() {
    kill "$demo"
    wait "$demo" 2>/dev/null || true
}

# Reads where the window is on the screen. Its pictures are of the screen, so that dialogs and tool
# tips are on them.
measure() {
    local X Y WIDTH HEIGHT
    eval "$(xdotool getwindowgeometry --shell "$window")"
    eval "$(xdotool mousemove --window "$window" 0 0 getmouselocation --shell)"
    area="${WIDTH}x$HEIGHT+$X+$Y"
    xdotool mousemove 0 0
}
# A picture has no certain moment: the window is drawn when two pictures of it are equal.
take() {
    rm -f "$work/before.ppm"
    until import -window root -crop "$area" +repage "$work/next.ppm" \
          && cmp -s "$work/next.ppm" "$work/before.ppm"; do
        mv "$work/next.ppm" "$work/before.ppm"
        sleep 0.3
    done
    convert "$work/next.ppm" "$folder/$1.png"
}
keys() { xdotool key --clearmodifiers "$@"; sleep 0.5; }
# Finds a setting and opens its page.
open() {
    keys ctrl+f ctrl+a
    xdotool type "$1"
    sleep 1
    keys Return
    sleep 0.5
}

start
keys ctrl+f
xdotool type hotk
sleep 1
take find
open 'delay capture'
keys ctrl+a
xdotool type 7
take reset
keys ctrl+f
xdotool type @changed
sleep 1
take changed

# The buttons are reached by Tab: the one of the page is behind the last field.
open 'count down'
keys space
open 'distance'
keys Tab space
take question
keys Tab Return
take undo-bar
keys ctrl+z # the bar goes

open 'author'
keys Tab # the mark of the found row goes with the first key
xdotool mousemove --window "$window" 575 84 mousemove_relative 2 1
sleep 1.5
take details
xdotool mousemove 0 0

cat >"$work/Screen Tool settings.json" <<'EOF'
{
    "Capture.Delay": {"t": 1795373463, "v": 5},
    "Capture.FrameRate": {"t": 1795373463, "v": 60},
    "General.Recent": {"t": 1795373463, "v": 40},
    "General.Tips": {"t": 1795373463, "v": false},
    "Hotkeys.Capture.Window": {"t": 1795373463, "v": "Ctrl+Alt+Z"},
    "Output.Image.Format": {"t": 1795373463, "v": "WebP"},
    "Sound.Volume": {"t": 1795373463, "v": 3}
}
EOF
keys ctrl+f Tab Tab space
sleep 0.5
keys ctrl+a
xdotool type "$work/Screen Tool settings.json"
keys Return
sleep 1
keys Down Down space
take import
keys Escape

xdotool windowsize --sync "$window" 700 690
measure
open 'show tips'
keys Tab
take narrow
quit

start
open 'capture a window'
keys ctrl+alt+a # the hotkey of another row
take conflict
quit

start --high-contrast
open 'delay capture'
keys ctrl+a
xdotool type 7
keys Tab
take contrast-light
quit
start --high-contrast --theme dark
open 'delay capture'
keys ctrl+a
xdotool type 7
keys Tab
take contrast-dark
quit

for picture in "$folder"/*.png; do
    convert "$picture" +dither -colors 256 -strip "$picture"
done
optipng -quiet -strip all "$folder"/*.png
ls -l "$folder"
